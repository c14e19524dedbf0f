#include "editing/DateEntry.h"
#include "model/MarrowvaleModel.h"
#include "platform/foundation/Calendar.h"
#include "tests/editing/AddMovieTest.h"
#include "tests/support/Home.h"

#include <QPointer>

namespace {

class DateEntryTest : public AddMovieTest
{
protected:
    // With the date field entered, as its layout has it done.
    AddMovieViewController& enteringDate()
    {
        AddMovieViewController& screen = openedAndFilled();
        QObject::connect(screen.DateWatchedTextField, &UITextField::editingDidBegin, &screen,
                         &AddMovieViewController::DateWatchedEntered);
        screen.DateWatchedTextField->becomeFirstResponder();
        return screen;
    }

    static void tapBar(const AddMovieViewController& screen, const QString& title)
    {
        for (UIBarButtonItem* item : screen.DateWatchedTextField->inputAccessoryView()->items())
            if (item->title() == title)
                item->tap();
    }

    static std::tuple<int, int, int> storedDay(const Movies& movie)
    {
        const QDate day = movie.dateWatched()->toLocalTime().date();
        return {day.year(), day.month(), day.day()};
    }

    const std::tuple<int, int, int> march5{2021, 3, 5};
    const QString march5Text = "Friday, March 5, 2021";
};

TEST_F(DateEntryTest, TheLastMatchingSettingThatTheSystemOffersIsThePickersStyle)
{
    using Style = UIDatePicker::Style;
    const QString wheel = "UseDateWheel";
    const QString compact = "UseDateCompact";
    const QString calendar = "UseDateInline";
    struct Case
    {
        double version;
        QStringList on, off;
        Style style;
    };
    const std::vector<Case> cases{
        {14, {}, {}, Style::Wheels},
        {14, {}, {wheel, compact, calendar}, Style::Wheels},
        {14, {wheel}, {}, Style::Wheels},
        {14, {wheel, compact}, {}, Style::Compact},
        {14, {wheel, compact, calendar}, {}, Style::Inline},
        {14, {calendar}, {compact}, Style::Inline},
        {13.4, {compact, calendar}, {}, Style::Compact},
        {13.4, {calendar}, {}, Style::Wheels},
        {13.3, {wheel, compact, calendar}, {}, Style::Automatic},
    };
    UserDefaults userDefaults = UserDefaults::standard();
    for (const Case& example : cases) {
        const Home home;
        userDefaults = UserDefaults::standard();
        for (const QString& key : example.on)
            userDefaults.setBool(true, key);
        for (const QString& key : example.off)
            userDefaults.setBool(false, key);
        device.systemVersion = example.version;
        EXPECT_EQ(datePickerStyle(userDefaults), example.style)
            << example.version << ' ' << qPrintable(example.on.join(' '));
    }
}

TEST_F(DateEntryTest, EnteringTheFieldMakesAPickerOfTodayAndABarAboveIt)
{
    AddMovieViewController& screen = opened();
    const QPointer<UIDatePicker> first(screen.DateWatchedDatePicker);
    EXPECT_EQ(screen.DateWatchedTextField->inputView(), first);
    first->setSize(320, 100);
    UserDefaults::standard().setBool(true, "UseDateCompact");
    UserDefaults::standard().setBool(true, "UseDefaultDate");
    UserDefaults::standard().setObject("Mar 5, 2021", "DefaultDate");
    screen.DateWatchedEntered();

    const UIDatePicker& picker = *screen.DateWatchedDatePicker;
    EXPECT_NE(&picker, first);
    EXPECT_EQ(screen.DateWatchedTextField->inputView(), &picker);
    EXPECT_EQ(picker.width(), 320);
    EXPECT_EQ(picker.height(), 216);
    EXPECT_EQ(picker.backgroundColor(), QColor(Qt::white));
    EXPECT_EQ(picker.datePickerMode(), UIDatePicker::Mode::Date);
    EXPECT_EQ(picker.preferredDatePickerStyle(), UIDatePicker::Style::Compact);
    EXPECT_EQ(screen.DateWatchedTextField->text(), fullDateText(picker.date()))
        << "the default date of the settings is not used";

    const UIToolbar& bar = *screen.DateWatchedTextField->inputAccessoryView();
    EXPECT_TRUE(bar.isBlackStyle() && bar.isTranslucent());
    EXPECT_EQ(bar.tintColor(), QColor(92, 216, 255));
    ASSERT_EQ(bar.items().size(), 3);
    EXPECT_EQ(bar.items()[0]->title(), "Today");
    EXPECT_TRUE(bar.items()[1]->isFlexibleSpace());
    EXPECT_EQ(bar.items()[2]->title(), "Done");
}

TEST_F(DateEntryTest, AChosenDayIsStoredWithThePartsOfTheDefaultOne)
{
    AddMovieViewController& screen = enteringDate();
    screen.DateWatchedDatePicker->pick(2021, 3, 5);
    EXPECT_EQ(screen.DateWatchedTextField->text(), march5Text) << "each turn of the picker shows";
    tapBar(screen, "Done");
    EXPECT_FALSE(screen.DateWatchedTextField->isEditing());
    screen.SaveButtonClicked();

    const auto movie = storedMovie();
    EXPECT_EQ(storedDay(*movie), march5);
    const DateComponents byDefault = Calendar::current().components(MarrowvaleModel::defaultWatchDate());
    EXPECT_EQ((DateComponents{movie->wYear(), movie->wMonth(), movie->wDay()}), byDefault);
}

TEST_F(DateEntryTest, TodayShowsTodayButStoresThePickersDay)
{
    AddMovieViewController& screen = enteringDate();
    const QString today = screen.DateWatchedTextField->text();
    screen.DateWatchedDatePicker->pick(2021, 3, 5);
    tapBar(screen, "Today");
    EXPECT_EQ(screen.DateWatchedTextField->text(), today);
    EXPECT_FALSE(screen.DateWatchedTextField->isEditing());
    screen.SaveButtonClicked();
    EXPECT_EQ(storedDay(*storedMovie()), march5);
}

} // namespace
