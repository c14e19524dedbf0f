#include "browse/MovieSharing.h"

namespace {

void appendLine(QString& text, const QString& label, const std::optional<QString>& value)
{
    if (value)
        text += label + *value + QLatin1Char('\n');
}

void appendMovie(QString& text, const Movies& movie)
{
    appendLine(text, QStringLiteral("Movie Name: "), movie.movieName());
    appendLine(text, QStringLiteral("Provider: "), movie.provider());
    appendLine(text, QStringLiteral("Year Released: "), QString::number(movie.yearReleased()));
    appendLine(text, QStringLiteral("Run Time: "), QString::number(movie.runTime()));
    appendLine(text, QStringLiteral("Rating: "), movie.rating());
    appendLine(text, QStringLiteral("Genre: "), movie.genre());
    appendLine(text, QStringLiteral("Actor's: "), movie.actors());
    appendLine(text, QStringLiteral("Director: "), movie.directors());
    appendLine(text, QStringLiteral("Notes: "), movie.notes());
    text += QStringLiteral("\n\n");
}

} // namespace

QString sharedText(const std::vector<std::shared_ptr<Movies>>& movies)
{
    QString text;
    for (const auto& movie : movies)
        appendMovie(text, *movie);
    return text;
}
