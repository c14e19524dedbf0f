#include "summaries/TextGroupTableViewController.h"

#include "platform/foundation/LowerCaseSearch.h"
#include "platform/foundation/Text.h"

#include <QSet>

TextGroupTableViewController::TextGroupTableViewController(const GroupKind& groupKind,
                                                           Movies::Attribute attribute,
                                                           QString MovieFields::*chosen)
    : GroupTableViewController(groupKind)
    , attribute(attribute)
    , chosen(chosen)
{
}

void TextGroupTableViewController::groupMovies()
{
    MovieList = fetchedMovies();
    QSet<QString> found;
    for (const auto& movie : MovieList)
        if (const std::optional<QString> key = movie->text(attribute))
            found.insert(*key);
    keys = found.values();
    sort(keys);
}

void TextGroupTableViewController::filterRows(const QString& text)
{
    const LowerCaseSearch search(text);
    filteredKeys.clear();
    std::copy_if(keys.cbegin(), keys.cend(), std::back_inserter(filteredKeys),
                 [&](const QString& key) { return !key.isEmpty() && search.isIn(key); });
}

void TextGroupTableViewController::sort(QStringList& list) const
{
    std::sort(list.begin(), list.end(), precedesByCodePoint);
    if (!SortAsc.value_or(true))
        std::reverse(list.begin(), list.end());
}

QString TextGroupTableViewController::labelOfRow(std::size_t row) const
{
    return shownKeys().at(static_cast<qsizetype>(row));
}

NSPredicate TextGroupTableViewController::membersOfRow(std::size_t row) const
{
    return NSPredicate(kind.attribute + QStringLiteral(" = %@"), labelOfRow(row));
}

void TextGroupTableViewController::didSelectRowAt(const NSIndexPath& indexPath)
{
    shared().CurrentMovie.*chosen = shownKeys().at(indexPath.row);
}
