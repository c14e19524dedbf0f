#pragma once

#include <QStringList>
#include <QtQmlIntegration/qqmlintegration.h>

// The swipe actions of one row, handed out when they are uncovered. They are those of the record that the row
// showed at that moment: once the table has reloaded or the row is gone, performing one does nothing.
struct UISwipeActionsConfiguration
{
    Q_GADGET
    QML_VALUE_TYPE(swipeActionsConfiguration)
    // Empty if the row can't be edited, as it is by default.
    Q_PROPERTY(QStringList titles MEMBER titles FINAL)

public:
    QStringList titles;
    // The row's UITableView::rowKey; 0, which no row has, by default.
    qint64 rowKey = 0;

    bool operator==(const UISwipeActionsConfiguration&) const = default;
};
