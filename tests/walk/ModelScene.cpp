#include "tests/walk/ModelScene.h"

#include "tests/walk/ModelOrder.h"
#include "tests/walk/ModelRows.h"

#include <QHash>

namespace {

using Content = ModelListKind::Content;

const std::vector<ModelListKind> listKinds{
    {"MainListTableViewController", Content::Movies, "# Movies = ", nullptr, {}, "MainList"},
    {"GenreGroupTableViewController", Content::TextGroups, "# Genre's = ", &ModelFilm::genre},
    {"ProviderGroupTableViewController", Content::TextGroups, "# Genre's = ", &ModelFilm::provider},
    {"RatingGroupTableViewController", Content::TextGroups, "# Ratings = ", &ModelFilm::rating},
    {"DateReleasedGroupTableViewController", Content::YearGroups, "# Year's = "},
    {"DateWatchedGroupTableViewController", Content::MonthGroups, "# Dates Watched = "},
    {"GenreBreakdownTableViewController",
     Content::MoviesOfGroup,
     "# Movies = ",
     &ModelFilm::genre,
     {},
     "GenreBreakdown"},
    {"ProviderBreakdownTableViewController",
     Content::MoviesOfGroup,
     "# Movies = ",
     &ModelFilm::provider,
     {},
     "ProviderBreakdown"},
    {"RatingBreakdownTableViewController",
     Content::MoviesOfGroup,
     "# Movies = ",
     &ModelFilm::rating,
     {},
     "RatingBreakdown"},
    {"DateReleasedBreakdownTableViewController",
     Content::MoviesOfGroup,
     "# Movies = ",
     nullptr,
     {},
     "DateReleasedBreakdown"},
    {"DateWatchedBreakdownTableViewController",
     Content::MoviesOfGroup,
     "# Movies = ",
     nullptr,
     {},
     "DateWatchedBreakdown"},
    {"GenreReferenceListTableViewController", Content::Values, "# Genre = ", nullptr, ValueList::Genres},
    {"ProviderReferenceListTableViewController", Content::Values, "# Providers = ", nullptr,
     ValueList::Providers},
    {"RatingReferenceListTableViewController", Content::Values, "# Ratings = ", nullptr, ValueList::Ratings},
};

template <typename Counts>
qsizetype countFilms(const ModelCatalogue& catalogue, const Counts& counts)
{
    return std::count_if(catalogue.films.begin(), catalogue.films.end(),
                         [&](const auto& film) { return counts(*film); });
}

QString filmRowText(const ModelFilm& film, const ModelScene& scene, const ModelCatalogue& catalogue)
{
    switch (scene.kind->content) {
    case Content::Movies:
        return movieRowText(film, scene.key);
    case Content::MoviesOfGroup:
        return groupMovieRowText(film, *scene.kind);
    case Content::YearGroups:
        return groupRowText(QString::number(film.year), countFilms(catalogue, [&](const auto& other) {
                                return other.year == film.year;
                            }));
    default: {
        const int year = watchedDay(film).year();
        return groupRowText(film.watched ? QString::number(year) : QString(),
                            countFilms(catalogue, [&](const auto& other) {
                                return other.watched && watchedDay(other).year() == year;
                            }));
    }
    }
}

} // namespace

const ModelListKind* listKindOf(const QString& screenClass)
{
    const auto found = std::find_if(listKinds.begin(), listKinds.end(),
                                    [&](const auto& kind) { return kind.screenClass == screenClass; });
    return found == listKinds.end() ? nullptr : &*found;
}

void ModelScene::load(const ModelCatalogue& catalogue)
{
    earlierTexts.clear();
    switch (kind->content) {
    case Content::TextGroups:
        return loadTextGroups(catalogue);
    case Content::YearGroups:
    case Content::MonthGroups:
        return loadDateGroups(catalogue);
    case Content::Values:
        return loadValues(catalogue);
    default:
        loadMovies(catalogue);
    }
}

void ModelScene::loadMovies(const ModelCatalogue& catalogue)
{
    films.clear();
    std::copy_if(catalogue.films.begin(), catalogue.films.end(), std::back_inserter(films),
                 [&](const auto& film) { return kind->content == Content::Movies || belongs(*film, *this); });
    sortFilms(films, *this);
    if (kind->content == Content::Movies)
        filteredFilms = films;
}

void ModelScene::loadTextGroups(const ModelCatalogue& catalogue)
{
    keys.clear();
    for (const auto& film : catalogue.films)
        if (const auto& text = (*film).*kind->groupText; text && !keys.contains(*text))
            keys.append(*text);
    std::sort(keys.begin(), keys.end(),
              [](const auto& left, const auto& right) { return compareTexts(left, right) < 0; });
    if (!ascending)
        std::reverse(keys.begin(), keys.end());
}

void ModelScene::loadDateGroups(const ModelCatalogue& catalogue)
{
    std::vector<FilmPointer> sorted = catalogue.films;
    sortFilms(sorted, *this);
    films.clear();
    QSet<int> groups;
    for (const auto& film : sorted) {
        const bool isYear = kind->content == Content::YearGroups;
        const QDate day = watchedDay(*film);
        const int group = isYear ? film->year : 100 * day.year() + day.month();
        if ((isYear || film->watched) && !groups.contains(group)) {
            groups.insert(group);
            films.push_back(film);
        }
    }
}

void ModelScene::loadValues(const ModelCatalogue& catalogue)
{
    values = catalogue.values[static_cast<std::size_t>(kind->values)];
    std::stable_sort(values.begin(), values.end(), [](const auto& left, const auto& right) {
        return compareTexts(left->text, right->text) < 0;
    });
}

void ModelScene::sort(const ModelCatalogue& catalogue)
{
    ascending = !ascending;
    const bool isGroups = kind->content != Content::Movies && kind->content != Content::MoviesOfGroup;
    if (isGroups && !search.isEmpty())
        sortFiltered();
    else
        load(catalogue);
}

void ModelScene::sortFiltered()
{
    earlierTexts.clear();
    sortFilms(filteredFilms, *this);
    std::sort(filteredKeys.begin(), filteredKeys.end(), [&](const auto& left, const auto& right) {
        return ascending ? compareTexts(left, right) < 0 : compareTexts(left, right) > 0;
    });
}

void ModelScene::filter()
{
    earlierTexts.clear();
    filteredFilms.clear();
    filteredKeys.clear();
    for (const auto& film : films)
        if (search.isEmpty() || matches(*film, *this))
            filteredFilms.push_back(film);
    for (const auto& key : keys)
        if (search.isEmpty() || searchFinds(search, key))
            filteredKeys.append(key);
}

void ModelScene::forget(std::size_t row)
{
    if (kind->content == Content::Values) {
        values.erase(values.begin() + static_cast<std::ptrdiff_t>(row));
    } else {
        auto& list = search.isEmpty() ? films : filteredFilms;
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(row));
    }
    if (row < earlierTexts.size())
        earlierTexts.erase(earlierTexts.begin() + static_cast<std::ptrdiff_t>(row));
}

void ModelScene::keepTexts(const ModelCatalogue& catalogue)
{
    const QStringList texts = rowTexts(catalogue);
    earlierTexts.resize(static_cast<std::size_t>(texts.size()));
    for (qsizetype row = 0; row < texts.size(); ++row)
        earlierTexts[static_cast<std::size_t>(row)].insert(texts[row]);
}

const std::vector<FilmPointer>& ModelScene::shownFilms() const
{
    return search.isEmpty() ? films : filteredFilms;
}

const QStringList& ModelScene::shownKeys() const
{
    return search.isEmpty() ? keys : filteredKeys;
}

QStringList ModelScene::rowTexts(const ModelCatalogue& catalogue) const
{
    QStringList texts;
    if (kind->content == Content::Values) {
        for (const auto& value : values)
            texts.append(value->text.isEmpty() ? "Empty" : value->text);
    } else if (kind->content == Content::TextGroups) {
        for (const auto& key : shownKeys())
            texts.append(groupRowText(
                key, countFilms(catalogue, [&](const auto& film) { return film.*kind->groupText == key; })));
    } else {
        for (const auto& film : shownFilms())
            texts.append(filmRowText(*film, *this, catalogue));
    }
    return texts;
}

QString ModelScene::header() const
{
    const auto shown = kind->content == Content::Values       ? static_cast<qsizetype>(values.size())
                       : kind->content == Content::TextGroups ? shownKeys().size()
                                                              : static_cast<qsizetype>(shownFilms().size());
    QString text = kind->headerPrefix + QString::number(shown);
    if (kind->content == Content::Movies && !search.isEmpty())
        text += QString(" of %1").arg(films.size());
    return text;
}

bool ModelScene::mayShow(const QStringList& texts, const ModelCatalogue& catalogue) const
{
    const QStringList expected = rowTexts(catalogue);
    const auto fits = [&](qsizetype row, const QString& text) {
        const auto place = static_cast<std::size_t>(row);
        return expected[row] == text || (place < earlierTexts.size() && earlierTexts[place].contains(text));
    };
    if (texts.isEmpty())
        return true;
    for (qsizetype first = 0; first + texts.size() <= expected.size(); ++first) {
        qsizetype row = 0;
        while (row < texts.size() && fits(first + row, texts[row]))
            ++row;
        if (row == texts.size())
            return true;
    }
    return false;
}
