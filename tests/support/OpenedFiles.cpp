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

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const auto file = openNoted(AT_FDCWD, path, flags, arguments);
    va_end(arguments);
    return file;
}

int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const auto file = openNoted(AT_FDCWD, path, flags, arguments);
    va_end(arguments);
    return file;
}

int openat(int directory, const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const auto file = openNoted(directory, path, flags, arguments);
    va_end(arguments);
    return file;
}

int openat64(int directory, const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const auto file = openNoted(directory, path, flags, arguments);
    va_end(arguments);
    return file;
}

FILE* fopen(const char* path, const char* mode)
{
    return openStream(path, mode);
}

FILE* fopen64(const char* path, const char* mode)
{
    return openStream(path, mode);
}
}
