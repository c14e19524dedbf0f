#pragma once

#include "platform/foundation/UserDefaults.h"
#include "platform/toolkit/UIDatePicker.h"
#include "platform/toolkit/UIToolbar.h"

// The parts of entering a watch date.

// `date` in the user's full date style, such as "Friday, March 5, 2021".
[[nodiscard]] QString fullDateText(const QDateTime& date);

// What the settings ask for, as far as the device's system version offers it; inline wins over compact,
// compact over wheels.
[[nodiscard]] UIDatePicker::Style datePickerStyle(const UserDefaults& userDefaults);

// The bar above the date picker: "Today" at its start, "Done" at its end.
[[nodiscard]] std::unique_ptr<UIToolbar> dateAccessoryBar(std::function<void()> today,
                                                          std::function<void()> done);
