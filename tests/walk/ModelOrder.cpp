#include "tests/walk/ModelOrder.h"

#include "tests/walk/ModelRows.h"

namespace {

using Content = ModelListKind::Content;

int compareNumbers(qint64 left, qint64 right)
{
    return left < right ? -1 : left > right ? 1 : 0;
}

qint64 watchedNumber(const ModelFilm& film)
{
    return film.watched ? film.watched->toMSecsSinceEpoch() : std::numeric_limits<qint64>::min();
}

int compareFilms(const ModelFilm& left, const ModelFilm& right, const ModelScene& scene)
{
    switch (scene.kind->content) {
    case Content::YearGroups:
        return compareNumbers(left.year, right.year);
    case Content::MonthGroups:
        return compareNumbers(watchedNumber(left), watchedNumber(right));
    case Content::TextGroups:
        return compareTexts(left.*scene.kind->groupText, right.*scene.kind->groupText);
    default:
        break;
    }
    int order = 0;
    if (scene.kind->content == Content::Movies && scene.key == MovieKey::Genre)
        order = compareTexts(left.genre, right.genre);
    else if (scene.kind->content == Content::Movies && scene.key == MovieKey::Rating)
        order = compareTexts(left.rating, right.rating);
    else if (scene.kind->content == Content::Movies && scene.key == MovieKey::Year)
        order = compareNumbers(left.year, right.year);
    return order != 0 ? order : compareTexts(left.name, right.name);
}

} // namespace

int compareTexts(const std::optional<QString>& left, const std::optional<QString>& right)
{
    if (!left || !right)
        return compareNumbers(left ? 1 : 0, right ? 1 : 0);
    return compareNumbers(left->toUtf8().compare(right->toUtf8()), 0);
}

void sortFilms(std::vector<FilmPointer>& films, const ModelScene& scene)
{
    if (!scene.ascending)
        std::reverse(films.begin(), films.end());
    std::stable_sort(films.begin(), films.end(), [&](const auto& left, const auto& right) {
        const int order = compareFilms(*left, *right, scene);
        return scene.ascending ? order < 0 : order > 0;
    });
}

QDate watchedDay(const ModelFilm& film)
{
    return film.watched ? film.watched->toLocalTime().date() : QDate();
}

bool belongs(const ModelFilm& film, const ModelScene& scene)
{
    if (scene.kind->groupText != nullptr)
        return film.*scene.kind->groupText == scene.chosenText;
    if (scene.kind->returnScreen == "DateReleasedBreakdown")
        return film.year == scene.chosenYear;
    return film.watchedParts.year() == scene.chosenYear && film.watchedParts.month() == scene.chosenMonth;
}

bool matches(const ModelFilm& film, const ModelScene& scene)
{
    switch (scene.kind->content) {
    case Content::YearGroups:
        return QString::number(film.year).contains(scene.search);
    case Content::MonthGroups:
        return film.watched && searchFinds(scene.search, momentText(*film.watched));
    case Content::Movies:
        if (scene.key == MovieKey::Year)
            return searchFinds(scene.search, QString::number(film.year));
        if (scene.key == MovieKey::Genre)
            return searchFinds(scene.search, film.genre.value_or(""));
        if (scene.key == MovieKey::Rating)
            return searchFinds(scene.search, film.rating.value_or(""));
        [[fallthrough]];
    default:
        return searchFinds(scene.search, film.name.value_or(""));
    }
}
