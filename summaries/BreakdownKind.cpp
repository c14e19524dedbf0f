#include "summaries/BreakdownKind.h"

#include "model/SharedValues.h"
#include "platform/foundation/Calendar.h"
#include "platform/foundation/Console.h"
#include "platform/foundation/DateFormatter.h"

namespace {

NSPredicate whereText(const QString& format, const QString& value)
{
    return NSPredicate(format, value);
}

QString genrePartOf(const Movies& movie)
{
    return QStringLiteral("Genre: ") + movie.genre().value_or(QString());
}

QString yearAfterName(const Movies& movie)
{
    return QStringLiteral("   Year: ") + QString::number(movie.yearReleased());
}

QString genreAfterName(const Movies& movie)
{
    return QStringLiteral("   ") + genrePartOf(movie);
}

QString watchedLine(const Movies& movie)
{
    const std::optional<QDateTime> date = movie.dateWatched();
    return QStringLiteral("Date Watched: ") + (date ? longDateText(*date) : QString());
}

int requiredChoice(const std::optional<int>& choice, const char* name)
{
    if (!choice)
        fatalError(QString::fromLatin1(name) + QStringLiteral(" is absent where a month is listed"));
    return *choice;
}

NSPredicate chosenMonth()
{
    const int year = requiredChoice(shared().SelectedYear, "SelectedYear");
    const int month = requiredChoice(shared().SelectedMonth, "SelectedMonth");
    return NSCompoundPredicate::andPredicate(
        {whereText(QStringLiteral("wYear == %@"), QString::number(year)),
         whereText(QStringLiteral("wMonth == %@"), QString::number(month))});
}

QString chosenMonthName()
{
    DateFormatter formatter;
    formatter.setDateFormat(QStringLiteral("MMMM yyyy"));
    return formatter.stringFrom(Calendar::current().startOfMonth(shared().SelectedYear.value_or(1),
                                                                 shared().SelectedMonth.value_or(1)));
}

} // namespace

const BreakdownKind& genreBreakdown()
{
    static const BreakdownKind kind{
        .returnScreen = QStringLiteral("GenreBreakdown"),
        .membersOfChosenGroup =
            [] { return whereText(QStringLiteral("genre == %@"), shared().CurrentMovie.genre); },
        .nameOfChosenGroup = [] { return shared().CurrentMovie.genre; },
        .firstLine = genrePartOf,
        .afterName = yearAfterName,
        .turnsTextBlack = true,
        .report = genreReport()};
    return kind;
}

const BreakdownKind& dateReleasedBreakdown()
{
    static const auto chosenYear = [] { return QString::number(shared().CurrentMovie.yearReleased); };
    static const BreakdownKind kind{
        .returnScreen = QStringLiteral("DateReleasedBreakdown"),
        .membersOfChosenGroup = [] { return whereText(QStringLiteral("yearReleased == %@"), chosenYear()); },
        .nameOfChosenGroup = chosenYear,
        .firstLine =
            [](const Movies& movie) {
                return QStringLiteral("Year Released: ") + QString::number(movie.yearReleased());
            },
        .afterName = genreAfterName,
        .turnsTextBlack = true,
        .report = dateReleasedReport()};
    return kind;
}

const BreakdownKind& dateWatchedBreakdown()
{
    static const BreakdownKind kind{.returnScreen = QStringLiteral("DateWatchedBreakdown"),
                                    .membersOfChosenGroup = chosenMonth,
                                    .nameOfChosenGroup = chosenMonthName,
                                    .firstLine = watchedLine,
                                    .afterName = genreAfterName,
                                    .turnsTextBlack = true,
                                    .report = dateWatchedReport()};
    return kind;
}

const BreakdownKind& ratingBreakdown()
{
    static const BreakdownKind kind{
        .returnScreen = QStringLiteral("RatingBreakdown"),
        .membersOfChosenGroup =
            [] { return whereText(QStringLiteral("rating == %@"), shared().CurrentMovie.rating); },
        .nameOfChosenGroup = [] { return shared().CurrentMovie.rating; },
        .firstLine =
            [](const Movies& movie) {
                return QStringLiteral("Rating: ") + movie.rating().value_or(QString());
            },
        .afterName = yearAfterName,
        .turnsTextBlack = true,
        .report = ratingReport()};
    return kind;
}

const BreakdownKind& providerBreakdown()
{
    static const BreakdownKind kind{
        .returnScreen = QStringLiteral("ProviderBreakdown"),
        .membersOfChosenGroup =
            [] { return whereText(QStringLiteral("provider == %@"), shared().CurrentMovie.provider); },
        .nameOfChosenGroup = [] { return shared().CurrentMovie.provider; },
        .firstLine =
            [](const Movies& movie) {
                return QStringLiteral("Provider: ") + movie.provider().value_or(QString()) +
                       QStringLiteral("  ") + genrePartOf(movie);
            },
        .afterName = yearAfterName,
        .turnsTextBlack = false,
        .report = providerReport()};
    return kind;
}
