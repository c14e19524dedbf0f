#include "exchange/PrintSelection.h"

#include "model/Movies.h"
#include "model/SharedValues.h"
#include "platform/foundation/Console.h"

#include <QHash>

namespace {

using Predicate = std::optional<NSPredicate>;

QString chosen(const std::optional<int>& part)
{
    if (!part)
        fatalError(QStringLiteral("The month to print is absent"));
    return QString::number(*part);
}

Predicate chosenMonth()
{
    return NSCompoundPredicate::andPredicate(
        {NSPredicate(QStringLiteral("wYear == %@"), chosen(shared().SelectedYear)),
         NSPredicate(QStringLiteral("wMonth == %@"), chosen(shared().SelectedMonth))});
}

const QHash<QString, Predicate (*)()>& predicatesByReturnScreen()
{
    static const QHash<QString, Predicate (*)()> table{
        {QStringLiteral("MainMenu"), [] { return Predicate(); }},
        {QStringLiteral("GenreBreakdown"),
         [] { return Predicate(NSPredicate(QStringLiteral("%@=genre"), shared().CurrentMovie.genre)); }},
        {QStringLiteral("DateReleasedBreakdown"),
         [] {
             return Predicate(NSPredicate(QStringLiteral("%@=yearReleased"),
                                          static_cast<qint64>(shared().CurrentMovie.yearReleased)));
         }},
        {QStringLiteral("DateWatchedBreakdown"), chosenMonth},
        {QStringLiteral("RatingBreakdown"),
         [] { return Predicate(NSPredicate(QStringLiteral("%@=rating"), shared().CurrentMovie.rating)); }},
        {QStringLiteral("ProviderBreakdown"),
         [] {
             return Predicate(NSPredicate(QStringLiteral("%@=provider"), shared().CurrentMovie.provider));
         }},
    };
    return table;
}

} // namespace

std::optional<NSFetchRequest> printRequest()
{
    const auto predicate = predicatesByReturnScreen().value(shared().ReturnScreen);
    if (predicate == nullptr)
        return std::nullopt;
    NSFetchRequest request = Movies::fetchRequest();
    request.setReturnsObjectsAsFaults(false);
    request.predicate = predicate();
    request.sortDescriptors = {{QStringLiteral("movieName"), shared().GlobalSortAsc}};
    return request;
}
