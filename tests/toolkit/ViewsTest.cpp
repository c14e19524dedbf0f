#include "platform/toolkit/UIDatePicker.h"
#include "platform/toolkit/UITableView.h"
#include "platform/toolkit/UITextField.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

class RecordingDelegate : public UITextFieldDelegate
{
public:
    bool shouldChangeCharactersInRange(UITextField& /*field*/, const NSRange& range,
                                       const QString& string) override
    {
        seenRange = range;
        seenText = string;
        return accepts;
    }

    NSRange seenRange;
    QString seenText;
    bool accepts = true;
};

TEST(TextFieldTest, AnEditIsToldAsTheSmallestChange)
{
    struct Case
    {
        QString before, after, replacement;
        NSRange range;
    };
    const std::vector<Case> cases{
        {QStringLiteral("19"), QStringLiteral("197"), QStringLiteral("7"), {2, 0}},
        {QStringLiteral("1979"), QStringLiteral("199"), QString(), {2, 1}},
        {QStringLiteral("aaa"), QStringLiteral("aaaa"), QStringLiteral("a"), {3, 0}},
        {QStringLiteral("abcd"), QStringLiteral("axyd"), QStringLiteral("xy"), {1, 2}},
        {QStringLiteral("old"), QString(), QString(), {0, 3}},
    };
    for (const Case& example : cases) {
        UITextField field;
        RecordingDelegate delegate;
        field.setDelegate(&delegate);
        field.setText(example.before);
        EXPECT_TRUE(field.edit(example.after));
        EXPECT_EQ(delegate.seenText, example.replacement);
        EXPECT_EQ(delegate.seenRange, example.range) << qPrintable(example.after);
    }
}

TEST(TextFieldTest, APastedTextBecomesOneLine)
{
    UITextField field;
    EXPECT_TRUE(field.edit(QString::fromUtf8("Alien\r\nResurrection\n\u2028")));
    EXPECT_EQ(field.text(), "Alien Resurrection  ");
}

TEST(TextFieldTest, ARefusedEditLeavesTheTextAndTellsNobody)
{
    UITextField field;
    RecordingDelegate delegate;
    field.setDelegate(&delegate);
    field.setText(QStringLiteral("12"));
    const QSignalSpy edits(&field, &UITextInput::editingChanged);

    delegate.accepts = false;
    EXPECT_FALSE(field.edit(QStringLiteral("12x")));
    EXPECT_EQ(field.text(), QStringLiteral("12"));
    field.setText(QStringLiteral("set by code"));
    EXPECT_TRUE(edits.isEmpty());

    delegate.accepts = true;
    EXPECT_TRUE(field.edit(QStringLiteral("3")));
    EXPECT_EQ(edits.size(), 1);
}

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

TEST(TableViewTest, ReloadingAndDeletingFollowTheDataSource)
{
    Numbers numbers;
    UITableView table(numbers);
    const QAbstractItemModelTester consistency(&table, QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const std::vector<int>& values :
         std::vector<std::vector<int>>{{1, 2, 3}, {7}, {}, {4, 5, 6, 7, 8}}) {
        numbers.values = values;
        table.reloadData();
        ASSERT_EQ(table.rowCount(), static_cast<int>(values.size()));
        for (int row = 0; row < table.rowCount(); ++row)
            EXPECT_EQ(table.data(table.index(row), UITableView::CellRole).toInt(),
                      values[static_cast<std::size_t>(row)]);
    }
    numbers.values.erase(numbers.values.begin() + 1);
    table.deleteRowAt({1});
    EXPECT_EQ(table.rowCount(), 4);
    EXPECT_EQ(table.data(table.index(1), UITableView::CellRole).toInt(), 6);
}

TEST(TableViewTest, TapsAndSwipesReachOnlyRowsThatAreThere)
{
    Numbers numbers;
    UITableView table(numbers);
    table.reloadData();
    const QSignalSpy selections(&table, &UITableView::selected);
    const auto swipe = [&](int row, int action) {
        table.performSwipeAction(table.swipeActions(table.rowKey(row)), action);
    };

    table.select(3);
    table.select(-1);
    table.selectRow(0);
    swipe(0, 0);
    swipe(1, 1);
    table.performSwipeAction({}, 0);
    EXPECT_EQ(numbers.chosen, -1);
    EXPECT_EQ(numbers.swiped, -1);
    EXPECT_TRUE(table.swipeActions(table.rowKey(0)).titles.isEmpty());

    table.selectRow(table.rowKey(2));
    swipe(1, 0);
    EXPECT_EQ(numbers.chosen, 2);
    EXPECT_EQ(numbers.swiped, 1);
    EXPECT_EQ(selections.size(), 1);
}

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

TEST(DatePickerTest, ComponentsStandInTheOrderOfTheLocale)
{
    using Component = UIDatePicker::Component;
    const auto order = [](Component first, Component second, Component third) {
        return QList<int>{static_cast<int>(first), static_cast<int>(second), static_cast<int>(third)};
    };
    for (const char* locale : {"ja_JP", "zh_CN", "ko_KR", "hu_HU", "lt_LT", "sv_SE"}) {
        QLocale::setDefault(QLocale(locale));
        EXPECT_EQ(UIDatePicker::componentOrder(), order(Component::Year, Component::Month, Component::Day))
            << locale;
    }
    for (const char* locale : {"de_DE", "en_GB", "bg_BG"}) {
        QLocale::setDefault(QLocale(locale));
        EXPECT_EQ(UIDatePicker::componentOrder(), order(Component::Day, Component::Month, Component::Year))
            << locale;
    }
    QLocale::setDefault(QLocale("en_US"));
    EXPECT_EQ(UIDatePicker::componentOrder(), order(Component::Month, Component::Day, Component::Year));
}

TEST(DatePickerTest, PickingKeepsTheTimeAndClampsToTheMonth)
{
    UIDatePicker picker;
    const QDateTime start(QDate(2024, 1, 31), QTime(20, 15, 30));
    picker.setDate(start.toUTC());
    const QSignalSpy changes(&picker, &UIDatePicker::valueChanged);

    picker.pick(2024, 2, 31);
    EXPECT_EQ(picker.date().toLocalTime(), QDateTime(QDate(2024, 2, 29), QTime(20, 15, 30)));
    picker.pick(2024, 2, 29);
    picker.pick(0, 2, 1);
    picker.pick(2024, 13, 1);
    EXPECT_EQ(changes.size(), 1) << "a day already shown and days that don't exist are no change";
}

} // namespace
