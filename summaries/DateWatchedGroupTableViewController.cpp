#include "model/SharedValues.h"
#include "platform/foundation/DateDescription.h"
#include "platform/foundation/LowerCaseSearch.h"
#include "summaries/GroupScreens.h"

namespace {

// Every movie of a row, or of a comparison of rows, has one: movies without a watch date belong to no group.
QDateTime watchDate(const Movies& movie)
{
    return movie.dateWatched().value_or(QDateTime());
}

} // namespace

DateWatchedGroupTableViewController::DateWatchedGroupTableViewController()
    : DateGroupTableViewController(dateWatchedGroups())
{
    monthFormatter.setDateFormat(QStringLiteral("yyyy MMMM"));
    yearFormatter.setDateFormat(QStringLiteral("yyyy"));
}

std::optional<QString> DateWatchedGroupTableViewController::keyOf(const Movies& movie)
{
    const std::optional<QDateTime> date = movie.dateWatched();
    if (!date)
        return std::nullopt;
    const DateComponents day = calendar.components(*date);
    QString& text = monthTexts[{day.year, day.month}];
    if (text.isEmpty())
        text = monthFormatter.stringFrom(*date);
    return text;
}

QString DateWatchedGroupTableViewController::labelOfRow(std::size_t row) const
{
    return yearFormatter.stringFrom(watchDate(movieOfRow(row)));
}

NSPredicate DateWatchedGroupTableViewController::membersOfRow(std::size_t row) const
{
    const int year = calendar.components(watchDate(movieOfRow(row))).year;
    return NSCompoundPredicate::andPredicate(
        {NSPredicate(QStringLiteral("dateWatched >= %@"), calendar.startOfYear(year)),
         NSPredicate(QStringLiteral("dateWatched < %@"), calendar.startOfYear(year + 1))});
}

bool DateWatchedGroupTableViewController::matches(const Movies& movie, const QString& searchText) const
{
    const std::optional<QDateTime> date = movie.dateWatched();
    return date && LowerCaseSearch(searchText).isIn(descriptionOf(*date));
}

bool DateWatchedGroupTableViewController::precedes(const Movies& left, const Movies& right) const
{
    return watchDate(left) < watchDate(right);
}

void DateWatchedGroupTableViewController::didSelectRowAt(const NSIndexPath& indexPath)
{
    const DateComponents day =
        calendar.components(watchDate(movieOfRow(static_cast<std::size_t>(indexPath.row))));
    shared().SelectedYear = day.year;
    shared().SelectedMonth = day.month;
}
