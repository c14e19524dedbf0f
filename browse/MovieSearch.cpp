#include "browse/MovieSearch.h"

namespace {

using SearchedField = std::optional<QString> (*)(const Movies&);

SearchedField searchedField(const QString& sortName)
{
    if (sortName == QStringLiteral("MovieName"))
        return [](const Movies& movie) { return movie.movieName(); };
    if (sortName == QStringLiteral("Genre"))
        return [](const Movies& movie) { return movie.genre(); };
    if (sortName == QStringLiteral("Rating"))
        return [](const Movies& movie) { return movie.rating(); };
    if (sortName == QStringLiteral("Year"))
        return [](const Movies& movie) { return std::optional(QString::number(movie.yearReleased())); };
    return nullptr;
}

} // namespace

std::optional<std::vector<std::shared_ptr<Movies>>>
moviesMatching(const QString& searchText, const QString& sortName,
               const std::vector<std::shared_ptr<Movies>>& movies)
{
    const SearchedField field = searchedField(sortName);
    if (field == nullptr)
        return std::nullopt;
    const QString wanted = searchText.toLower();
    std::vector<std::shared_ptr<Movies>> matching;
    for (const auto& movie : movies) {
        std::optional<QString> text = field(*movie);
        // Lower-casing a temporary happens in place.
        if (text && std::move(*text).toLower().contains(wanted))
            matching.push_back(movie);
    }
    return matching;
}
