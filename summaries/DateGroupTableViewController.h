#pragma once

#include "summaries/GroupTableViewController.h"

// Groups by a date: a row is the first movie of each year, or of each month, in the order of the dates.
class DateGroupTableViewController : public GroupTableViewController
{
    Q_OBJECT

public:
    // The text of each row's group, in the order of MovieList.
    QStringList DateList;
    MovieRecords FilteredMovieList;

protected:
    using GroupTableViewController::GroupTableViewController;

    void groupMovies() override;
    void filterRows(const QString& text) override;
    void unfilterRows() override { FilteredMovieList = MovieList; }
    void sortFilteredRows() override;
    [[nodiscard]] qsizetype shownRows() const override
    {
        return static_cast<qsizetype>(shownMovies().size());
    }

    [[nodiscard]] const Movies& movieOfRow(std::size_t row) const { return *shownMovies()[row]; }

    // The group of a movie; absent: it belongs to none.
    [[nodiscard]] virtual std::optional<QString> keyOf(const Movies& movie) = 0;
    [[nodiscard]] virtual bool matches(const Movies& movie, const QString& searchText) const = 0;
    [[nodiscard]] virtual bool precedes(const Movies& left, const Movies& right) const = 0;

private:
    [[nodiscard]] const MovieRecords& shownMovies() const
    {
        return isSearching() ? FilteredMovieList : MovieList;
    }
};
