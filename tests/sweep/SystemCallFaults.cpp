#include "tests/sweep/SystemCallFaults.h"

#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <optional>
#include <set>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using Operation = FaultPlan::Operation;

FaultPlan currentPlan;
std::set<ino_t> unsynced;
int unsyncedNames = 0;

// The error number that a call fails with.
std::optional<int> errorOf(Fault fault)
{
    switch (fault) {
    case Fault::None:
    case Fault::ShortWrite:
        return std::nullopt;
    case Fault::DiskFull:
    case Fault::DiskFullForGood:
        return ENOSPC;
    case Fault::FailedOpen:
        return EACCES;
    default:
        return EIO;
    }
}

template <typename Call>
auto callUnless(Fault fault, Call call)
{
    const auto error = errorOf(fault);
    if (!error)
        return call();
    errno = *error;
    return static_cast<decltype(call())>(-1);
}

ino_t numberOf(int file)
{
    struct stat status
    {
    };
    return ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) ? status.st_ino : 0;
}

void noteName(const char* path)
{
    struct stat status
    {
    };
    if (::stat(path, &status) == 0 && unsynced.contains(status.st_ino))
        ++unsyncedNames;
}

bool isForWriting(int flags)
{
    return (flags & O_ACCMODE) != O_RDONLY;
}

} // namespace

FaultPlan& SystemCallFaults::plan()
{
    return currentPlan;
}

int SystemCallFaults::namedUnsynced()
{
    return unsyncedNames;
}

void SystemCallFaults::forgetNamedUnsynced()
{
    unsyncedNames = 0;
    unsynced.clear();
}

// The program's own definitions come before those of the C library, for Qt too.
extern "C" {
int openOrFail(const char* path, int flags, ...) __asm__("open64");
ssize_t writeOrFail(int file, const void* bytes, size_t count) __asm__("write");
int syncOrFail(int file) __asm__("fdatasync");
int linkOrFail(int from, const char* path, int to, const char* name, int flags) noexcept __asm__("linkat");
int renameOrFail(const char* from, const char* to) noexcept __asm__("rename");
int changeModeOrFail(int file, mode_t mode) noexcept __asm__("fchmod");
}

int openOrFail(const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const auto mode = va_arg(arguments, mode_t);
    va_end(arguments);
    const auto fault = isForWriting(flags) ? currentPlan.next(Operation::Open) : Fault::None;
    return callUnless(fault,
                      [&] { return static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode)); });
}

ssize_t writeOrFail(int file, const void* bytes, size_t count)
{
    const auto number = numberOf(file);
    const auto fault = number != 0 ? currentPlan.next(Operation::Write) : Fault::None;
    const auto taken = fault == Fault::ShortWrite ? (count + 1) / 2 : count;
    return callUnless(fault, [&] {
        unsynced.insert(number);
        return static_cast<ssize_t>(::syscall(SYS_write, file, bytes, taken));
    });
}

int syncOrFail(int file)
{
    return callUnless(currentPlan.next(Operation::Sync), [&] {
        unsynced.erase(numberOf(file));
        return static_cast<int>(::syscall(SYS_fdatasync, file));
    });
}

int linkOrFail(int from, const char* path, int to, const char* name, int flags) noexcept
{
    return callUnless(currentPlan.next(Operation::Other), [&] {
        const auto linked = static_cast<int>(::syscall(SYS_linkat, from, path, to, name, flags));
        if (linked == 0)
            noteName(name);
        return linked;
    });
}

int renameOrFail(const char* from, const char* to) noexcept
{
    return callUnless(currentPlan.next(Operation::Other), [&] {
        const auto renamed = static_cast<int>(::syscall(SYS_rename, from, to));
        if (renamed == 0)
            noteName(to);
        return renamed;
    });
}

int changeModeOrFail(int file, mode_t mode) noexcept
{
    return callUnless(currentPlan.next(Operation::Other),
                      [&] { return static_cast<int>(::syscall(SYS_fchmod, file, mode)); });
}
