#include "tour/FakeClock.h"

#include <atomic>
#include <ctime>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr std::time_t calendarStart = 1'780'315'200;
constexpr long nanosecondsPerMillisecond = 1'000'000;

// Zero: the real clocks. Threads read it while the main one advances it.
std::atomic<long> milliseconds = 0;
std::atomic<std::time_t> monotonicStart = 0;

timespec moment(std::time_t start, long elapsed)
{
    return {start + elapsed / 1000, elapsed % 1000 * nanosecondsPerMillisecond};
}

bool isCalendar(clockid_t clock)
{
    return clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE;
}

bool isMonotonic(clockid_t clock)
{
    return clock == CLOCK_MONOTONIC || clock == CLOCK_MONOTONIC_COARSE || clock == CLOCK_BOOTTIME;
}

} // namespace

void FakeClock::start()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    monotonicStart = now.tv_sec;
    milliseconds = 1;
}

bool FakeClock::isStarted()
{
    return milliseconds != 0;
}

void FakeClock::advance(std::chrono::milliseconds step)
{
    milliseconds += step.count();
}

// The program's own definitions come before those of the C library, for Qt too.
extern "C" int readFakeClock(clockid_t clock, timespec* now) noexcept __asm__("clock_gettime");
extern "C" int readFakeTimeOfDay(timeval* now, void* zone) noexcept __asm__("gettimeofday");

int readFakeClock(clockid_t clock, timespec* now) noexcept
{
    const long elapsed = milliseconds;
    if (elapsed == 0 || !(isCalendar(clock) || isMonotonic(clock)))
        return static_cast<int>(syscall(SYS_clock_gettime, clock, now));
    *now = moment(isCalendar(clock) ? calendarStart : monotonicStart.load(), elapsed);
    return 0;
}

int readFakeTimeOfDay(timeval* now, void* /*zone*/) noexcept
{
    timespec precise{};
    clock_gettime(CLOCK_REALTIME, &precise);
    *now = {precise.tv_sec, precise.tv_nsec / 1000};
    return 0;
}
