// How a movie editor's watch date is entered.

#include "editing/DateEntry.h"
#include "editing/MovieEditorViewController.h"

namespace {

constexpr double datePickerHeight = 216;

} // namespace

void MovieEditorViewController::DateWatchedEntered()
{
    auto* picker = new UIDatePicker(this);
    picker->setSize(DateWatchedDatePicker->width(), datePickerHeight);
    picker->setBackgroundColor(Qt::white);
    picker->setDatePickerMode(UIDatePicker::Mode::Date);
    picker->setPreferredDatePickerStyle(datePickerStyle(userDefaults));
    connect(picker, &UIDatePicker::valueChanged, this, &MovieEditorViewController::DateWatchedDateChanged);

    DateWatchedTextField->setInputView(picker);
    DateWatchedTextField->setInputAccessoryView(
        dateAccessoryBar([this] { DateWatchedTodayClick(); }, [this] { DateWatchedDoneClick(); }));
    // A layout may still show the one replaced.
    std::exchange(DateWatchedDatePicker, picker)->deleteLater();
    DateWatchedTextField->setText(fullDateText(picker->date()));
}

void MovieEditorViewController::DateWatchedDateChanged()
{
    takePickersDate();
}

void MovieEditorViewController::DateWatchedDoneClick()
{
    takePickersDate();
    endEditing();
}

void MovieEditorViewController::DateWatchedTodayClick()
{
    DateWatchedTextField->setText(fullDateText(QDateTime::currentDateTimeUtc()));
    DateWatched = DateWatchedDatePicker->date();
    endEditing();
}

void MovieEditorViewController::takePickersDate()
{
    DateWatched = DateWatchedDatePicker->date();
    DateWatchedTextField->setText(fullDateText(DateWatched));
}
