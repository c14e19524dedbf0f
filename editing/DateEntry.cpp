#include "editing/DateEntry.h"

#include "platform/foundation/DateFormatter.h"
#include "platform/services/Device.h"

namespace {

using PickerStyle = UIDatePicker::Style;

constexpr double wheelsSince = 13.4;
constexpr double inlineSince = 14;
const QColor accessoryTint = QColor::fromRgb(92, 216, 255);

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
    if (version < wheelsSince)
        return PickerStyle::Automatic;
    if (version >= inlineSince && isSwitchedOn(userDefaults, QStringLiteral("UseDateInline")))
        return PickerStyle::Inline;
    // Wheels stand for both the switch of their own and none at all.
    return isSwitchedOn(userDefaults, QStringLiteral("UseDateCompact")) ? PickerStyle::Compact
                                                                        : PickerStyle::Wheels;
}

std::unique_ptr<UIToolbar> dateAccessoryBar(std::function<void()> today, std::function<void()> done)
{
    auto bar = std::make_unique<UIToolbar>();
    bar->setBlackStyle(true);
    bar->setTranslucent(true);
    bar->setTintColor(accessoryTint);
    std::vector<std::unique_ptr<UIBarButtonItem>> items;
    items.push_back(std::make_unique<UIBarButtonItem>(UIAction{QStringLiteral("Today"), std::move(today)}));
    items.push_back(UIBarButtonItem::makeFlexibleSpace());
    items.push_back(std::make_unique<UIBarButtonItem>(UIAction{QStringLiteral("Done"), std::move(done)}));
    bar->setItems(std::move(items));
    return bar;
}
