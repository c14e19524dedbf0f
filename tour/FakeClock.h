#pragma once

#include <chrono>

// The process's clocks, once `start` was called: monotonic and calendar time move only by `advance`. The
// whole process reads them, Qt's timers, animations and time stamps of input too.
namespace FakeClock {

// Calendar time begins at noon (UTC) of 1 June 2026.
void start();
[[nodiscard]] bool isStarted();
void advance(std::chrono::milliseconds step);

} // namespace FakeClock
