#include "tests/support/OpenedFiles.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

thread_local QStringList* noted = nullptr;

void note(const char* path)
{
    if (noted != nullptr)
        noted->append(QString::fromLocal8Bit(path));
}

int openNoted(int directory, const char* path, int flags, va_list arguments)
{
    note(path);
    const auto hasMode = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    const auto mode = hasMode ? va_arg(arguments, unsigned) : 0U;
    return static_cast<int>(::syscall(SYS_openat, directory, path, flags, mode));
}

FILE* openStream(const char* path, const char* mode)
{
    note(path);
    const auto isPlus = std::strchr(mode, '+') != nullptr;
    const auto direction = isPlus ? O_RDWR : *mode == 'r' ? O_RDONLY : O_WRONLY;
    const auto making = *mode == 'r' ? 0 : O_CREAT | (*mode == 'a' ? O_APPEND : O_TRUNC);
    const auto file = static_cast<int>(
        ::syscall(SYS_openat, AT_FDCWD, path, direction | making | O_CLOEXEC, S_IRUSR | S_IWUSR));
    return file < 0 ? nullptr : ::fdopen(file, mode);
}

} // namespace

OpenedFiles::OpenedFiles()
{
    noted = new QStringList;
}

OpenedFiles::~OpenedFiles()
{
    delete std::exchange(noted, nullptr);
}

QStringList OpenedFiles::paths() const
{
    return *noted;
}

// The program's own definitions come before those of the C library, for Qt too.
extern "C" {
int notedOpen(const char* path, int flags, ...) __asm__("open");
int notedOpen64(const char* path, int flags, ...) __asm__("open64");
int notedOpenat(int directory, const char* path, int flags, ...) __asm__("openat");
int notedOpenat64(int directory, const char* path, int flags, ...) __asm__("openat64");
FILE* notedFopen(const char* path, const char* mode) __asm__("fopen");
FILE* notedFopen64(const char* path, const char* mode) __asm__("fopen64");
}

int notedOpen(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const auto file = openNoted(AT_FDCWD, path, flags, arguments);
    va_end(arguments);
    return file;
}

int notedOpen64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const auto file = openNoted(AT_FDCWD, path, flags, arguments);
    va_end(arguments);
    return file;
}

int notedOpenat(int directory, const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const auto file = openNoted(directory, path, flags, arguments);
    va_end(arguments);
    return file;
}

int notedOpenat64(int directory, const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const auto file = openNoted(directory, path, flags, arguments);
    va_end(arguments);
    return file;
}

FILE* notedFopen(const char* path, const char* mode)
{
    return openStream(path, mode);
}

FILE* notedFopen64(const char* path, const char* mode)
{
    return openStream(path, mode);
}
