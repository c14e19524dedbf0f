#include "platform/foundation/TerminationSignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

// Of a pipe, since hardly anything else may be called where signals arrive.
int writingEnd = -1;

void pass(int /*signal*/)
{
    const int before = errno;
    static_cast<void>(::write(writingEnd, "", 1));
    errno = before;
}

// As whoever started the program wanted it: nohup, say.
bool isIgnored(int signal)
{
    struct sigaction now = {};
    return ::sigaction(signal, nullptr, &now) == 0 && now.sa_handler == SIG_IGN;
}

} // namespace

void quitAtTerminationSignals(QCoreApplication& application, std::function<void()> beforeTheEnd)
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    writingEnd = ends[1];
    const auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, &application);
    const auto end = [reading = ends[0], before = std::move(beforeTheEnd)] {
        char passed = 0;
        if (::read(reading, &passed, 1) != 1)
            return;
        if (before)
            before();
        QCoreApplication::exit();
    };
    QObject::connect(notifier, &QSocketNotifier::activated, &application, end);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        if (isIgnored(signal))
            continue;
        struct sigaction action = {};
        action.sa_handler = pass;
        action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
        ::sigaction(signal, &action, nullptr);
    }
}
