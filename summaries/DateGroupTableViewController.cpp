#include "summaries/DateGroupTableViewController.h"

#include <QSet>

void DateGroupTableViewController::groupMovies()
{
    DateList.clear();
    QSet<QString> found;
    MovieRecords firsts;
    for (auto& movie : fetchedMovies()) {
        const std::optional<QString> key = keyOf(*movie);
        if (!key || found.contains(*key))
            continue;
        found.insert(*key);
        DateList.append(*key);
        firsts.push_back(std::move(movie));
    }
    MovieList = std::move(firsts);
}

void DateGroupTableViewController::filterRows(const QString& text)
{
    FilteredMovieList.clear();
    std::copy_if(MovieList.begin(), MovieList.end(), std::back_inserter(FilteredMovieList),
                 [&](const auto& movie) { return matches(*movie, text); });
}

void DateGroupTableViewController::sortFilteredRows()
{
    const bool ascending = SortAsc.value_or(true);
    std::stable_sort(FilteredMovieList.begin(), FilteredMovieList.end(),
                     [&](const auto& left, const auto& right) {
                         return ascending ? precedes(*left, *right) : precedes(*right, *left);
                     });
}
