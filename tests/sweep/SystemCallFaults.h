#pragma once

#include "tests/support/FaultPlan.h"

// What goes wrong with the C library's calls by which files are written, for the whole process, Qt included.
// Standard output is left alone.
namespace SystemCallFaults {

// A short write takes half and succeeds; whatever else fails sets errno.
[[nodiscard]] FaultPlan& plan();

// How many files got a name while some of their bytes were not synced: the loss of power may leave such a
// file empty or cut short.
[[nodiscard]] int namedUnsynced();
void forgetNamedUnsynced();

} // namespace SystemCallFaults
