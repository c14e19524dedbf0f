#include "platform/toolkit/UIDatePicker.h"
#include "platform/toolkit/UITextField.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

TEST(TextFieldTest, APastedTextBecomesOneLine)
{
    UITextField field;
    EXPECT_TRUE(field.edit(QString::fromUtf8("Alien\r\nResurrection\n\u2028")));
    EXPECT_EQ(field.text(), "Alien Resurrection  ");
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
