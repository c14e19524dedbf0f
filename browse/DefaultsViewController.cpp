#include "browse/DefaultsViewController.h"

#include "model/DatePickerSettings.h"
#include "platform/foundation/DateFormatter.h"
#include "platform/services/Device.h"
#include "platform/services/SystemVersions.h"
#include "platform/toolkit/DateAccessoryBar.h"

namespace {

using PickerStyle = UIDatePicker::Style;

constexpr double unfoldingSeconds = 0.25;
const QString useDefaultDateKey = QStringLiteral("UseDefaultDate");
const QString defaultDateKey = QStringLiteral("DefaultDate");

DateFormatter mediumFormatter()
{
    DateFormatter formatter;
    formatter.setDateStyle(DateStyle::Medium);
    return formatter;
}

} // namespace

// A stored compact style counts since the same version as wheels, but can be chosen only since a later one.
DefaultsViewController::DefaultsViewController()
    : wheel{wheelSwitch, &UseDateWheel, DatePickerSettings::wheel, PickerStyle::Wheels,
            SystemVersions::dateWheels}
    , calendar{inlineSwitch, &UseInlineDate, DatePickerSettings::calendar, PickerStyle::Inline,
               SystemVersions::inlineDates}
    , compact{compactSwitch, &UseCompactDate, DatePickerSettings::compact, PickerStyle::Compact,
              SystemVersions::inlineDates}
{
}

void DefaultsViewController::viewDidLoad()
{
    dateTextField->setLayer({.cornerRadius = 5, .borderWidth = 1});
    dateTextField->setInputView(datePickerView);
    dateTextField->setDelegate(this);
    datePickerView->setHidden(true);
    loadDefaultDate();
    loadPickerStyle();
}

bool DefaultsViewController::shouldChangeCharactersInRange(UITextField& /*field*/, const NSRange& /*range*/,
                                                           const QString& /*string*/)
{
    return false;
}

void DefaultsViewController::loadDefaultDate()
{
    if (!userDefaults.objectForKey(useDefaultDateKey))
        userDefaults.setBool(false, useDefaultDateKey);
    DefaultDateSwitch->setOn(userDefaults.boolForKey(useDefaultDateKey));
    setDefaultDateHidden(!DefaultDateSwitch->isOn());
    const auto stored = userDefaults.objectForKey(defaultDateKey);
    if (DefaultDateSwitch->isOn() && stored)
        dateTextField->setText(stored->toString());
}

void DefaultsViewController::loadPickerStyle()
{
    const double version = Device::current().systemVersion;
    if (version < SystemVersions::dateWheels)
        setCompanionsHidden(true);
    else if (isStored(wheel))
        restore(wheel);
    else if (isStored(compact))
        restore(compact);
    if (version >= SystemVersions::inlineDates && isStored(calendar))
        restore(calendar);
}

void DefaultsViewController::SwitchChanged()
{
    const bool on = DefaultDateSwitch->isOn();
    setDefaultDateHidden(!on, unfoldingSeconds);
    userDefaults.setBool(on, useDefaultDateKey);
    if (on)
        return;
    // A panel left open would go on choosing for the hidden field.
    endEditing();
    userDefaults.setObject(QStringLiteral(""), defaultDateKey);
    dateTextField->setText(QString());
}

void DefaultsViewController::DateWheelSwitch()
{
    turned(wheel);
}

void DefaultsViewController::DateInlineSwitch()
{
    turned(calendar);
}

void DefaultsViewController::DateCompactSwitch()
{
    turned(compact);
}

void DefaultsViewController::DateEntered()
{
    datePickerView->setHidden(false);
    dateTextField->setInputAccessoryView(
        makeDateAccessoryBar({.title = QStringLiteral("Done"), .handler = [this] { doneClick(); }},
                             {.title = QStringLiteral("Today"), .handler = [this] { todayClick(); }}));
    if (const auto date = mediumFormatter().dateFrom(dateTextField->text()))
        datePickerView->setDate(*date);
    connect(datePickerView, &UIDatePicker::valueChanged, this, &DefaultsViewController::dateChanged,
            Qt::UniqueConnection);
}

void DefaultsViewController::dateChanged()
{
    enterDate(datePickerView->date());
}

void DefaultsViewController::doneClick()
{
    dateChanged();
}

void DefaultsViewController::todayClick()
{
    enterDate(QDateTime::currentDateTimeUtc());
}

void DefaultsViewController::dismissKeyboard()
{
    endEditing();
}

void DefaultsViewController::setDefaultDateHidden(bool hidden, double seconds)
{
    DefaultDateLabel->setHidden(hidden, seconds);
    dateTextField->setHidden(hidden, seconds);
}

// What is of no use where the system has no choice of styles. The inline switch stays, and turning it on
// brings the others back.
void DefaultsViewController::setCompanionsHidden(bool hidden)
{
    for (UIView* view : std::initializer_list<UIView*>{SelectDPLabel, UseDateWheelLabel, wheelSwitch,
                                                       UseCompactDateLabel, compactSwitch})
        view->setHidden(hidden);
}

bool DefaultsViewController::isStored(const StyleChoice& choice) const
{
    return userDefaults.boolForKey(choice.key);
}

void DefaultsViewController::adopt(const StyleChoice& choice)
{
    for (const StyleChoice* each : {&wheel, &calendar, &compact}) {
        *each->chosen = each == &choice;
        each->toggle->setOn(each == &choice);
    }
}

void DefaultsViewController::restore(const StyleChoice& choice)
{
    adopt(choice);
    datePickerView->setPreferredDatePickerStyle(choice.style);
}

void DefaultsViewController::turned(const StyleChoice& choice)
{
    if (!choice.toggle->isOn())
        return;
    adopt(choice);
    if (Device::current().systemVersion >= choice.since)
        datePickerView->setPreferredDatePickerStyle(choice.style);
    setCompanionsHidden(false);
    for (const StyleChoice* each : {&wheel, &calendar, &compact})
        userDefaults.setBool(each == &choice, each->key);
}

void DefaultsViewController::enterDate(const QDateTime& date)
{
    dateTextField->setText(mediumFormatter().stringFrom(date));
    userDefaults.setObject(dateTextField->text(), defaultDateKey);
    endEditing();
}
