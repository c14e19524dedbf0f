#include "editing/DateEntry.h"

#include "model/DatePickerSettings.h"
#include "platform/foundation/DateFormatter.h"
#include "platform/services/Device.h"
#include "platform/services/SystemVersions.h"
#include "platform/toolkit/DateAccessoryBar.h"

namespace {

using PickerStyle = UIDatePicker::Style;

bool isSwitchedOn(const UserDefaults& userDefaults, const QString& key)
{
    return userDefaults.objectForKey(key).has_value() && userDefaults.boolForKey(key);
}

} // namespace

QString fullDateText(const QDateTime& date)
{
    DateFormatter formatter;
    formatter.setDateStyle(DateStyle::Full);
    return formatter.stringFrom(date);
}

UIDatePicker::Style datePickerStyle(const UserDefaults& userDefaults)
{
    const double version = Device::current().systemVersion;
    if (version < SystemVersions::dateWheels)
        return PickerStyle::Automatic;
    if (version >= SystemVersions::inlineDates && isSwitchedOn(userDefaults, DatePickerSettings::calendar))
        return PickerStyle::Inline;
    // Wheels stand for both the switch of their own and none at all.
    return isSwitchedOn(userDefaults, DatePickerSettings::compact) ? PickerStyle::Compact
                                                                   : PickerStyle::Wheels;
}

std::unique_ptr<UIToolbar> dateAccessoryBar(std::function<void()> today, std::function<void()> done)
{
    auto bar = makeDateAccessoryBar({.title = QStringLiteral("Today"), .handler = std::move(today)},
                                    {.title = QStringLiteral("Done"), .handler = std::move(done)});
    bar->setBlackStyle(true);
    return bar;
}
