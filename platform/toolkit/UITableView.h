#pragma once

#include "platform/toolkit/Appearance.h"
#include "platform/toolkit/UIMenu.h"
#include "platform/toolkit/UISwipeActionsConfiguration.h"

#include <QAbstractListModel>

// The place of a row. Tables here have one section.
struct NSIndexPath
{
    int row = 0;
    int section = 0;

    bool operator==(const NSIndexPath&) const = default;
};

// What a table asks for its contents and tells of the user's acts. Rows outside the table are never asked
// for.
class UITableViewDataSource
{
public:
    virtual ~UITableViewDataSource() = default;

    [[nodiscard]] virtual int numberOfSectionsInTableView() { return 1; }
    [[nodiscard]] virtual int numberOfRowsInSection(int section) = 0;
    // A gadget holding the row's outlets.
    [[nodiscard]] virtual QVariant cellForRowAt(const NSIndexPath& indexPath) = 0;
    [[nodiscard]] virtual double heightForRowAt(const NSIndexPath& indexPath) = 0;
    // Absent: the table has no header.
    [[nodiscard]] virtual std::optional<LabelContent> viewForHeaderInSection(int section) = 0;
    // Asked before the swipe actions; rows that say nothing can't be edited.
    [[nodiscard]] virtual bool canEditRowAt(const NSIndexPath& /*indexPath*/) { return false; }
    [[nodiscard]] virtual std::vector<UIAction>
    trailingSwipeActionsConfigurationForRowAt(const NSIndexPath& /*indexPath*/)
    {
        return {};
    }
    virtual void didSelectRowAt(const NSIndexPath& indexPath) = 0;
};

// A scrolling list of rows, made only as they come into sight: the role `cell` asks the data source.
//
// Each user action on a row names it by its key, the role `rowKey`, because a position holds another record
// once the table has reloaded. A key is the row's until the next reload or until the row is deleted, and is
// never used again. An unknown key does nothing.
class UITableView : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Tables belong to screens")
    Q_PROPERTY(LabelContent header READ header NOTIFY headerChanged FINAL)
    Q_PROPERTY(bool hasHeader READ hasHeader NOTIFY headerChanged FINAL)
    Q_PROPERTY(double rowHeight READ rowHeight NOTIFY headerChanged FINAL)
    Q_PROPERTY(int count READ count NOTIFY headerChanged FINAL)

public:
    static constexpr int CellRole = Qt::UserRole;
    static constexpr int RowKeyRole = Qt::UserRole + 1;
    enum class EditingStyle { None, Delete, Insert };

    // `source` must outlive the table.
    explicit UITableView(UITableViewDataSource& source, QObject* parent = nullptr);

    // Shows what the data source holds now. The place scrolled to stays; every row gets a new key.
    void reloadData();
    // Takes one row out, fading; the data source must already lack it.
    void deleteRowAt(const NSIndexPath& indexPath);

    [[nodiscard]] LabelContent header() const;
    [[nodiscard]] bool hasHeader() const;
    [[nodiscard]] double rowHeight() const;
    [[nodiscard]] int count() const { return static_cast<int>(keys.size()); }

    // `row` must be one of the table.
    [[nodiscard]] qint64 rowKey(int row) const { return keys[static_cast<std::size_t>(row)]; }

    // The user tapped the row that is at `row` now. A row outside does nothing.
    void select(int row);
    // The user tapped the row with that key.
    Q_INVOKABLE void selectRow(qint64 rowKey);
    // The buttons that a swipe uncovers; none where a row can't be edited.
    Q_INVOKABLE [[nodiscard]] UISwipeActionsConfiguration swipeActions(qint64 rowKey) const;
    // `action` is an index of the titles; one outside does nothing.
    Q_INVOKABLE void performSwipeAction(const UISwipeActionsConfiguration& actions, int action);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void headerChanged();
    // A row was tapped and the data source knows of it: the layout's segue follows.
    void selected(int row);

private:
    [[nodiscard]] bool holds(int row) const { return row >= 0 && row < count(); }
    // Null if no row has that key.
    [[nodiscard]] std::optional<NSIndexPath> pathOf(qint64 rowKey) const;
    [[nodiscard]] std::vector<UIAction> actionsOf(const std::optional<NSIndexPath>& path) const;

    UITableViewDataSource& source;
    // One for each row, ascending.
    std::vector<qint64> keys;
    qint64 lastKey = 0;
};
