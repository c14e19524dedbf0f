#include "model/SharedValues.h"
#include "summaries/GroupScreens.h"

DateReleasedGroupTableViewController::DateReleasedGroupTableViewController()
    : DateGroupTableViewController(dateReleasedGroups())
{
}

std::optional<QString> DateReleasedGroupTableViewController::keyOf(const Movies& movie)
{
    return QString::number(movie.yearReleased());
}

QString DateReleasedGroupTableViewController::labelOfRow(std::size_t row) const
{
    return QString::number(movieOfRow(row).yearReleased());
}

NSPredicate DateReleasedGroupTableViewController::membersOfRow(std::size_t row) const
{
    return NSPredicate(QStringLiteral("yearReleased = %@"), labelOfRow(row));
}

bool DateReleasedGroupTableViewController::matches(const Movies& movie, const QString& searchText) const
{
    return QString::number(movie.yearReleased()).contains(searchText);
}

bool DateReleasedGroupTableViewController::precedes(const Movies& left, const Movies& right) const
{
    return left.yearReleased() < right.yearReleased();
}

void DateReleasedGroupTableViewController::didSelectRowAt(const NSIndexPath& indexPath)
{
    shared().CurrentMovie.yearReleased = movieOfRow(static_cast<std::size_t>(indexPath.row)).yearReleased();
}
