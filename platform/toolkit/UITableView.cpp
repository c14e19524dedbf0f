#include "platform/toolkit/UITableView.h"

UITableView::UITableView(UITableViewDataSource& source, QObject* parent)
    : QAbstractListModel(parent)
    , source(source)
{
}

void UITableView::reloadData()
{
    // Growing or shrinking at the end, unlike a reset, keeps the view where it was scrolled to.
    const int wanted = source.numberOfRowsInSection(0);
    if (wanted > rows) {
        beginInsertRows({}, rows, wanted - 1);
        rows = wanted;
        endInsertRows();
    } else if (wanted < rows) {
        beginRemoveRows({}, wanted, rows - 1);
        rows = wanted;
        endRemoveRows();
    }
    if (rows > 0)
        Q_EMIT dataChanged(index(0), index(rows - 1), {CellRole});
    Q_EMIT headerChanged();
}

void UITableView::deleteRowAt(const NSIndexPath& indexPath)
{
    if (!holds(indexPath.row))
        return;
    beginRemoveRows({}, indexPath.row, indexPath.row);
    --rows;
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

QStringList UITableView::swipeActionTitles(int row) const
{
    QStringList titles;
    if (holds(row) && source.canEditRowAt({row}))
        for (const UIAction& action : source.trailingSwipeActionsConfigurationForRowAt({row}))
            titles.append(action.title);
    return titles;
}

void UITableView::performSwipeAction(int row, int action)
{
    if (action < 0 || action >= swipeActionTitles(row).size())
        return;
    source.trailingSwipeActionsConfigurationForRowAt({row})[static_cast<std::size_t>(action)].handler();
}

int UITableView::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : rows;
}

QVariant UITableView::data(const QModelIndex& index, int role) const
{
    // A shrinking list is asked for rows that its source has already let go.
    if (!index.isValid() || role != CellRole || index.row() >= source.numberOfRowsInSection(0))
        return {};
    return source.cellForRowAt({index.row()});
}

QHash<int, QByteArray> UITableView::roleNames() const
{
    return {{CellRole, "cell"}};
}
