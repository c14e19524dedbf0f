#include "browse/DefaultsViewController.h"
#include "platform/toolkit/UINavigationController.h"
#include "tests/support/Home.h"
#include "tests/support/PlainStoryboard.h"
#include "tests/support/RecordingDevice.h"

#include <gtest/gtest.h>

namespace {

using Style = UIDatePicker::Style;

const QString wheel = "UseDateWheel";
const QString calendar = "UseDateInline";
const QString compact = "UseDateCompact";
const QString useDefaultDate = "UseDefaultDate";
const QString defaultDate = "DefaultDate";

class SettingsTest : public testing::Test
{
protected:
    // The screen as its layout joins it.
    DefaultsViewController& opened()
    {
        navigation.push(std::make_unique<DefaultsViewController>());
        auto& screen = static_cast<DefaultsViewController&>(*navigation.topViewController());
        using Screen = DefaultsViewController;
        const auto join = [&](UISwitch* toggle, void (Screen::*action)()) {
            QObject::connect(toggle, &UISwitch::valueChanged, &screen, action);
        };
        join(screen.DefaultDateSwitch, &Screen::SwitchChanged);
        join(screen.wheelSwitch, &Screen::DateWheelSwitch);
        join(screen.inlineSwitch, &Screen::DateInlineSwitch);
        join(screen.compactSwitch, &Screen::DateCompactSwitch);
        QObject::connect(screen.dateTextField, &UITextInput::editingDidBegin, &screen, &Screen::DateEntered);
        return screen;
    }

    // With the default date on and its field entered.
    DefaultsViewController& openedAtDate(const QString& text)
    {
        setting().setBool(true, useDefaultDate);
        setting().setObject(text, defaultDate);
        DefaultsViewController& screen = opened();
        screen.dateTextField->becomeFirstResponder();
        return screen;
    }

    static void tapBar(const DefaultsViewController& screen, const QString& title)
    {
        const auto items = screen.dateTextField->inputAccessoryView()->items();
        const auto found = std::find_if(items.begin(), items.end(),
                                        [&](const UIBarButtonItem* item) { return item->title() == title; });
        ASSERT_NE(found, items.end()) << qPrintable(title);
        (*found)->tap();
    }

    static UserDefaults setting() { return UserDefaults::standard(); }
    static std::optional<QVariant> stored(const QString& key) { return setting().objectForKey(key); }

    // The style switches that are on and the keys that hold true, which a reader of the settings goes by.
    static QStringList switchesOn(const DefaultsViewController& screen)
    {
        QStringList on;
        for (const auto& [toggle, key] : {std::pair{screen.wheelSwitch, wheel},
                                          {screen.inlineSwitch, calendar},
                                          {screen.compactSwitch, compact}})
            if (toggle->isOn())
                on.append(key);
        return on;
    }
    static QStringList keysOn()
    {
        QStringList on;
        for (const QString& key : {wheel, calendar, compact})
            if (setting().boolForKey(key))
                on.append(key);
        return on;
    }

    static QDate pickedDay(const DefaultsViewController& screen)
    {
        return {screen.datePickerView->year(), screen.datePickerView->month(), screen.datePickerView->day()};
    }

    RecordingDevice device;
    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
};

TEST_F(SettingsTest, TheFirstOpeningStoresThatThereIsNoDefaultDateAndNothingElse)
{
    const DefaultsViewController& screen = opened();
    EXPECT_EQ(stored(useDefaultDate), QVariant(false));
    EXPECT_FALSE(screen.DefaultDateSwitch->isOn());
    EXPECT_TRUE(screen.DefaultDateLabel->isHidden() && screen.dateTextField->isHidden());
    EXPECT_EQ(switchesOn(screen), QStringList());
    for (const QString& key : {defaultDate, wheel, calendar, compact})
        EXPECT_EQ(stored(key), std::nullopt) << qPrintable(key);
    EXPECT_EQ(screen.dateTextField->layer(), (Layer{.cornerRadius = 5, .borderWidth = 1}));
}

TEST_F(SettingsTest, TurningTheDefaultDateOffEmptiesIt)
{
    DefaultsViewController& screen = openedAtDate("Mar 5, 2021");
    screen.DefaultDateSwitch->toggle();
    EXPECT_EQ(stored(useDefaultDate), QVariant(false));
    EXPECT_EQ(stored(defaultDate), QVariant(""));
    EXPECT_TRUE(screen.DefaultDateLabel->isHidden() && screen.dateTextField->isHidden());
    EXPECT_FALSE(screen.dateTextField->isEditing()) << "the picker would go on without its field";

    screen.DefaultDateSwitch->toggle();
    EXPECT_EQ(stored(useDefaultDate), QVariant(true));
    EXPECT_FALSE(screen.DefaultDateLabel->isHidden() || screen.dateTextField->isHidden());
    EXPECT_EQ(screen.dateTextField->text(), "");
    EXPECT_EQ(stored(defaultDate), QVariant(""));
}

TEST_F(SettingsTest, OneStyleAtMostIsOn)
{
    DefaultsViewController& screen = opened();
    struct Case
    {
        UISwitch* toggle;
        QString key;
        Style style;
        std::array<bool, 3> members;
    };
    const std::vector<Case> cases{
        {screen.compactSwitch, compact, Style::Compact, {false, false, true}},
        {screen.wheelSwitch, wheel, Style::Wheels, {true, false, false}},
        {screen.inlineSwitch, calendar, Style::Inline, {false, true, false}},
        {screen.compactSwitch, compact, Style::Compact, {false, false, true}},
    };
    for (const Case& example : cases) {
        example.toggle->toggle();
        EXPECT_EQ(switchesOn(screen), QStringList(example.key));
        EXPECT_EQ(keysOn(), QStringList(example.key));
        EXPECT_EQ(screen.datePickerView->preferredDatePickerStyle(), example.style);
        EXPECT_EQ((std::array{screen.UseDateWheel, screen.UseInlineDate, screen.UseCompactDate}),
                  example.members);
    }
    screen.compactSwitch->toggle();
    EXPECT_EQ(switchesOn(screen), QStringList());
    EXPECT_EQ(keysOn(), QStringList(compact)) << "turning off stores nothing";
    EXPECT_EQ(switchesOn(opened()), QStringList(compact));
}

TEST_F(SettingsTest, TheSystemsVersionDecidesWhichStoredStyleCounts)
{
    struct Case
    {
        double version;
        QStringList on;
        QStringList shown;
        Style style;
    };
    const std::vector<Case> cases{
        {14, {wheel, calendar, compact}, {calendar}, Style::Inline},
        {14, {wheel, compact}, {wheel}, Style::Wheels},
        {14, {compact}, {compact}, Style::Compact},
        {13.4, {compact}, {compact}, Style::Compact},
        {13.4, {wheel, calendar}, {wheel}, Style::Wheels},
        {13.4, {calendar}, {}, Style::Automatic},
        {13.3, {wheel, calendar, compact}, {}, Style::Automatic},
    };
    for (const Case& example : cases) {
        const Home home;
        for (const QString& key : example.on)
            setting().setBool(true, key);
        device.systemVersion = example.version;
        const DefaultsViewController& screen = opened();
        EXPECT_EQ(switchesOn(screen), example.shown) << example.version << qPrintable(example.on.join(' '));
        EXPECT_EQ(screen.datePickerView->preferredDatePickerStyle(), example.style);
        EXPECT_EQ(keysOn(), example.on);
    }
}

TEST_F(SettingsTest, WithoutAChoiceOfStylesOnlyTheInlineSwitchShowsUntilItBringsTheOthersBack)
{
    device.systemVersion = 13.3;
    DefaultsViewController& screen = opened();
    const std::vector<UIView*> companions{screen.SelectDPLabel, screen.UseDateWheelLabel, screen.wheelSwitch,
                                          screen.UseCompactDateLabel, screen.compactSwitch};
    const auto hidden = [&] {
        return std::count_if(companions.begin(), companions.end(),
                             [](UIView* view) { return view->isHidden(); });
    };
    EXPECT_EQ(hidden(), 5);
    EXPECT_FALSE(screen.inlineSwitch->isHidden() || screen.UseInlineDateLabel->isHidden());
    screen.inlineSwitch->toggle();
    EXPECT_EQ(hidden(), 0);
}

TEST_F(SettingsTest, EnteringTheDateShowsThePickerAtItUnderABar)
{
    const DefaultsViewController& screen = openedAtDate("Mar 5, 2021");
    EXPECT_FALSE(screen.datePickerView->isHidden());
    EXPECT_EQ(screen.dateTextField->inputView(), screen.datePickerView);
    EXPECT_EQ(pickedDay(screen), QDate(2021, 3, 5));
    const UIToolbar& bar = *screen.dateTextField->inputAccessoryView();
    EXPECT_TRUE(bar.isTranslucent() && !bar.isBlackStyle());
    EXPECT_EQ(bar.tintColor(), QColor(92, 216, 255));
    ASSERT_EQ(bar.items().size(), 3);
    EXPECT_EQ(bar.items()[0]->title(), "Done");
    EXPECT_TRUE(bar.items()[1]->isFlexibleSpace());
    EXPECT_EQ(bar.items()[2]->title(), "Today");
    EXPECT_FALSE(screen.dateTextField->edit("Mar 6, 2021")) << "what is typed would not be stored";
}

TEST_F(SettingsTest, ATextThatIsNoDateLeavesThePickerAsItIs)
{
    for (const char* text : {"", "next Friday", "05.03.2021", "Feb 30, 2021"}) {
        DefaultsViewController& screen = openedAtDate("Mar 5, 2021");
        screen.dismissKeyboard();
        screen.dateTextField->setText(text);
        screen.dateTextField->becomeFirstResponder();
        EXPECT_EQ(pickedDay(screen), QDate(2021, 3, 5)) << text;
    }
}

TEST_F(SettingsTest, APickedDayIsStoredAsShownAndEndsEditing)
{
    DefaultsViewController& screen = openedAtDate("Mar 5, 2021");
    screen.datePickerView->pick(2020, 2, 29);
    for (const QString& day : {QString("Feb 29, 2020"), QString("Mar 1, 2020")}) {
        EXPECT_EQ(screen.dateTextField->text(), day);
        EXPECT_EQ(stored(defaultDate), QVariant(day));
        EXPECT_FALSE(screen.dateTextField->isEditing());
        screen.dateTextField->becomeFirstResponder();
        screen.datePickerView->setDate(QDateTime(QDate(2020, 3, 1), QTime(12, 0)));
        tapBar(screen, "Done");
    }
}

} // namespace
