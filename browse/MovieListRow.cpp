#include "browse/MovieListRow.h"

#include "platform/foundation/DateFormatter.h"

namespace {

struct RowTexts
{
    QString first;
    QString second;
};

QString ratingPart(const Movies& movie)
{
    return QStringLiteral("Rating: ") + movie.rating().value_or(QString());
}

QString yearPart(const Movies& movie)
{
    return QStringLiteral("Year Released: ") + QString::number(movie.yearReleased());
}

QString genrePart(const Movies& movie)
{
    return QStringLiteral("Genre: ") + movie.genre().value_or(QString());
}

QString namePart(const Movies& movie)
{
    return QStringLiteral("Movie Name: ") + movie.movieName().value_or(QString());
}

RowTexts upperTexts(const Movies& movie, const QString& sortName)
{
    const QString blank = QStringLiteral(" ");
    if (sortName == QStringLiteral("Rating"))
        return {ratingPart(movie), namePart(movie) + blank + yearPart(movie)};
    if (sortName == QStringLiteral("Year"))
        return {yearPart(movie), namePart(movie) + blank + ratingPart(movie)};
    if (sortName == QStringLiteral("Genre"))
        return {genrePart(movie), namePart(movie) + blank + ratingPart(movie)};
    return {namePart(movie), QStringLiteral("Date Released: ") + QString::number(movie.yearReleased()) +
                                 blank + genrePart(movie) + blank + ratingPart(movie)};
}

QString watchedText(const Movies& movie, const QString& sortName)
{
    const QString runTime = QString::number(movie.runTime());
    const std::optional<QDateTime> date = movie.dateWatched();
    if (!date)
        return QStringLiteral("Date Watched: N/A  Run Time: ") + runTime;
    const QString unit = sortName == QStringLiteral("MovieName") ? QStringLiteral(" min") : QString();
    return QStringLiteral("Date Watched: ") + longDateText(*date) + QStringLiteral(" Run Time: ") + runTime +
           unit;
}

} // namespace

MainListTableViewCell movieListRow(const Movies& movie, const QString& sortName, bool blackText)
{
    const auto [first, second] = upperTexts(movie, sortName);
    return movieTableViewCell({first, second, watchedText(movie, sortName)}, movie, blackText);
}
