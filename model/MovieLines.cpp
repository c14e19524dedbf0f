#include "model/MovieLines.h"

QString movieLines(const MovieTexts& movie)
{
    const std::pair<QString, const std::optional<QString>&> lines[] = {
        {QStringLiteral("Movie Name: "), movie.movieName},
        {QStringLiteral("Provider: "), movie.provider},
        {QStringLiteral("Year Released: "), movie.yearReleased},
        {QStringLiteral("Run Time: "), movie.runTime},
        {QStringLiteral("Rating: "), movie.rating},
        {QStringLiteral("Genre: "), movie.genre},
        {QStringLiteral("Actor's: "), movie.actors},
        {QStringLiteral("Director: "), movie.directors},
        {QStringLiteral("Notes: "), movie.notes},
    };
    QString text;
    for (const auto& [label, value] : lines)
        if (value)
            text += label + *value + QLatin1Char('\n');
    return text;
}
