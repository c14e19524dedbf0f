#include "platform/toolkit/UITableView.h"

#include <gtest/gtest.h>

namespace {

class Numbers : public UITableViewDataSource
{
public:
    int numberOfRowsInSection(int) override { return static_cast<int>(values.size()); }
    QVariant cellForRowAt(const NSIndexPath& path) override
    {
        return values[static_cast<std::size_t>(path.row)];
    }
    double heightForRowAt(const NSIndexPath&) override { return 60; }
    std::optional<LabelContent> viewForHeaderInSection(int) override { return std::nullopt; }
    bool canEditRowAt(const NSIndexPath& path) override { return path.row != 0; }
    std::vector<UIAction> trailingSwipeActionsConfigurationForRowAt(const NSIndexPath& path) override
    {
        return {{.title = QStringLiteral("delete"), .handler = [this, path] { swiped = path.row; }}};
    }
    void didSelectRowAt(const NSIndexPath& path) override { chosen = path.row; }

    std::vector<int> values{1, 2, 3};
    int chosen = -1;
    int swiped = -1;
};

TEST(TableViewTest, WhatWasBegunOnARowFollowsItsRecordUntilTheTableReloads)
{
    Numbers numbers;
    numbers.values = {1, 2, 3, 4};
    UITableView table(numbers);
    table.reloadData();
    const qint64 key = table.rowKey(3);
    const UISwipeActionsConfiguration uncovered = table.swipeActions(key);

    numbers.values.erase(numbers.values.begin() + 1);
    table.deleteRowAt({1});
    table.selectRow(key);
    table.performSwipeAction(uncovered, 0);
    EXPECT_EQ(numbers.chosen, 2);
    EXPECT_EQ(numbers.swiped, 2);

    numbers.chosen = numbers.swiped = -1;
    for (const std::vector<int>& values : std::vector<std::vector<int>>{{1, 3, 4}, {4, 3}, {4, 3, 1, 5}}) {
        numbers.values = values;
        table.reloadData();
        table.selectRow(key);
        table.performSwipeAction(uncovered, 0);
        EXPECT_EQ(numbers.chosen, -1);
        EXPECT_EQ(numbers.swiped, -1) << "another record stands there";
    }
}

} // namespace
