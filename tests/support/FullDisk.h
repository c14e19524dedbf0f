#pragma once

#include <QtGlobal>
#include <csignal>
#include <sys/resource.h>

// A limit of the process stands for a disk that fills up: while the object lives, no file gets longer than
// `most` bytes.
class FullDisk
{
public:
    explicit FullDisk(rlim_t most)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit limited{most, usual.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &usual); }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit usual{};
};
