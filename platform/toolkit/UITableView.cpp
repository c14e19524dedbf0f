#include "platform/toolkit/UITableView.h"

#include <algorithm>
#include <numeric>

UITableView::UITableView(UITableViewDataSource& source, QObject* parent)
    : QAbstractListModel(parent)
    , source(source)
{
}

void UITableView::reloadData()
{
    // Growing or shrinking at the end, unlike a reset, keeps the view where it was scrolled to.
    const int rows = count();
    const int wanted = source.numberOfRowsInSection(0);
    if (wanted > rows)
        beginInsertRows({}, rows, wanted - 1);
    else if (wanted < rows)
        beginRemoveRows({}, wanted, rows - 1);
    keys.resize(static_cast<std::size_t>(wanted));
    std::iota(keys.begin(), keys.end(), lastKey + 1);
    lastKey += wanted;
    if (wanted > rows)
        endInsertRows();
    else if (wanted < rows)
        endRemoveRows();
    if (wanted > 0)
        Q_EMIT dataChanged(index(0), index(wanted - 1), {CellRole, RowKeyRole});
    Q_EMIT headerChanged();
}

void UITableView::deleteRowAt(const NSIndexPath& indexPath)
{
    if (!holds(indexPath.row))
        return;
    beginRemoveRows({}, indexPath.row, indexPath.row);
    keys.erase(keys.begin() + indexPath.row);
    endRemoveRows();
    Q_EMIT headerChanged();
}

LabelContent UITableView::header() const
{
    return source.viewForHeaderInSection(0).value_or(LabelContent{});
}

bool UITableView::hasHeader() const
{
    return source.viewForHeaderInSection(0).has_value();
}

double UITableView::rowHeight() const
{
    return source.heightForRowAt({});
}

void UITableView::select(int row)
{
    if (!holds(row))
        return;
    source.didSelectRowAt({row});
    Q_EMIT selected(row);
}

void UITableView::selectRow(qint64 rowKey)
{
    if (const auto path = pathOf(rowKey))
        select(path->row);
}

std::optional<NSIndexPath> UITableView::pathOf(qint64 rowKey) const
{
    const auto found = std::lower_bound(keys.begin(), keys.end(), rowKey);
    if (found == keys.end() || *found != rowKey)
        return std::nullopt;
    return NSIndexPath{static_cast<int>(found - keys.begin())};
}

std::vector<UIAction> UITableView::actionsOf(const std::optional<NSIndexPath>& path) const
{
    if (!path || !source.canEditRowAt(*path))
        return {};
    return source.trailingSwipeActionsConfigurationForRowAt(*path);
}

UISwipeActionsConfiguration UITableView::swipeActions(qint64 rowKey) const
{
    UISwipeActionsConfiguration configuration;
    configuration.rowKey = rowKey;
    for (const UIAction& action : actionsOf(pathOf(rowKey)))
        configuration.titles.append(action.title);
    return configuration;
}

// The actions are made anew, because deleting another row moves the record without making its key void.
void UITableView::performSwipeAction(const UISwipeActionsConfiguration& actions, int action)
{
    const auto current = actionsOf(pathOf(actions.rowKey));
    if (action >= 0 && action < static_cast<int>(current.size()))
        current[static_cast<std::size_t>(action)].handler();
}

int UITableView::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant UITableView::data(const QModelIndex& index, int role) const
{
    // A shrinking list is asked for rows that its source has already let go.
    if (!index.isValid() || index.row() >= source.numberOfRowsInSection(0))
        return {};
    if (role == RowKeyRole)
        return rowKey(index.row());
    return role == CellRole ? source.cellForRowAt({index.row()}) : QVariant();
}

QHash<int, QByteArray> UITableView::roleNames() const
{
    return {{CellRole, "cell"}, {RowKeyRole, "rowKey"}};
}
