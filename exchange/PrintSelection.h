#pragma once

#include "platform/store/NSFetchRequest.h"

// The movies that the print screen prints, by title: those of the screen that opened it, which SharedValues
// tell. Absent: no screen that prints anything. A month that nobody chose ends the program.
[[nodiscard]] std::optional<NSFetchRequest> printRequest();
