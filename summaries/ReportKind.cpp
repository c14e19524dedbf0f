#include "summaries/ReportKind.h"

#include "platform/foundation/DateFormatter.h"

namespace {

const QString genreFile = QStringLiteral("GenreMovieList.pdf");
const QString yearReleasedFile = QStringLiteral("YearReleasedMovieList.pdf");

QString genreOf(const Movies& movie)
{
    return movie.genre().value_or(QString());
}

QString ratingOf(const Movies& movie)
{
    return movie.rating().value_or(QString());
}

QString providerOf(const Movies& movie)
{
    return movie.provider().value_or(QString());
}

QString monthWatched(const Movies& movie)
{
    static const DateFormatter formatter = [] {
        DateFormatter month;
        month.setDateFormat(QStringLiteral("MMMM yyyy"));
        return month;
    }();
    return formatter.stringFrom(movie.dateWatched().value_or(QDateTime()));
}

} // namespace

const ReportKind& genreReport()
{
    static const ReportKind kind{.titleText = QStringLiteral("Movies Filtered by Genre: "),
                                 .titleValue = genreOf,
                                 .leadingLine = nullptr,
                                 .lineAfterGenre = nullptr,
                                 .fileName = genreFile};
    return kind;
}

const ReportKind& dateReleasedReport()
{
    static const ReportKind kind{
        .titleText = QStringLiteral("Movies Filtered by Year Released: "),
        .titleValue = [](const Movies& movie) { return QString::number(movie.yearReleased()); },
        .leadingLine = nullptr,
        .lineAfterGenre = nullptr,
        .fileName = yearReleasedFile};
    return kind;
}

const ReportKind& dateWatchedReport()
{
    static const ReportKind kind{
        .titleText = QStringLiteral("Movies Filtered by Date Watched: "),
        .titleValue = monthWatched,
        .leadingLine =
            [](const Movies& movie) { return QStringLiteral("Date Watched: ") + monthWatched(movie); },
        .lineAfterGenre = nullptr,
        .fileName = yearReleasedFile};
    return kind;
}

const ReportKind& ratingReport()
{
    static const ReportKind kind{
        .titleText = QStringLiteral("Movies Filtered by Rating: "),
        .titleValue = ratingOf,
        .leadingLine = nullptr,
        .lineAfterGenre = [](const Movies& movie) { return QStringLiteral("Rating: ") + ratingOf(movie); },
        .fileName = genreFile};
    return kind;
}

const ReportKind& providerReport()
{
    static const ReportKind kind{
        .titleText = QStringLiteral("Movies Filtered by Provider: "),
        .titleValue = providerOf,
        .leadingLine = [](const Movies& movie) { return QStringLiteral("Provider: ") + providerOf(movie); },
        .lineAfterGenre = nullptr,
        .fileName = genreFile};
    return kind;
}
