#include "browse/MovieSearch.h"

#include "platform/foundation/LowerCaseSearch.h"

namespace {

using Matches = bool (*)(const Movies&, const LowerCaseSearch&);

template <Movies::Attribute attribute>
bool textMatches(const Movies& movie, const LowerCaseSearch& search)
{
    return movie.textMatches(attribute, search);
}

Matches matchesBy(const QString& sortName)
{
    if (sortName == QStringLiteral("MovieName"))
        return textMatches<Movies::MovieName>;
    if (sortName == QStringLiteral("Genre"))
        return textMatches<Movies::Genre>;
    if (sortName == QStringLiteral("Rating"))
        return textMatches<Movies::Rating>;
    if (sortName == QStringLiteral("Year"))
        return [](const Movies& movie, const LowerCaseSearch& search) {
            return search.isIn(QString::number(movie.yearReleased()));
        };
    return nullptr;
}

} // namespace

std::optional<std::vector<std::shared_ptr<Movies>>>
moviesMatching(const QString& searchText, const QString& sortName,
               const std::vector<std::shared_ptr<Movies>>& movies)
{
    const Matches matches = matchesBy(sortName);
    if (matches == nullptr)
        return std::nullopt;
    const LowerCaseSearch search(searchText);
    std::vector<std::shared_ptr<Movies>> matching;
    std::copy_if(movies.begin(), movies.end(), std::back_inserter(matching),
                 [&](const auto& movie) { return matches(*movie, search); });
    return matching;
}
