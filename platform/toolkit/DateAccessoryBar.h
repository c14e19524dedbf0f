#pragma once

#include "platform/toolkit/UIToolbar.h"

// The bar above a date picker, in the tint that all of them share: `first` at its start, `last` at its end.
[[nodiscard]] std::unique_ptr<UIToolbar> makeDateAccessoryBar(UIAction first, UIAction last);
