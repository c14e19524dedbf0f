#include "tests/walk/WalkProcess.h"

#include "tests/support/Surroundings.h"
#include "tests/walk/Walk.h"
#include "tour/AccessibleListener.h"
#include "tour/FakeClock.h"

#include <QApplication>
#include <QElapsedTimer>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// A walk writes lines into its pipe: one for each step begun, one for what it did, one for a failure.
constexpr char begunMark = '#';
constexpr char doneMark = '+';
constexpr char failureMark = '!';

// Seconds by the real clock, after which a step that hangs is ended by a signal.
constexpr unsigned longestStep = 60;

class Report
{
public:
    explicit Report(int pipe)
        : pipe(pipe)
    {
    }

    void line(char mark, const QString& text = {}) const
    {
        const QByteArray bytes = mark + QString(text).replace('\n', '\r').toUtf8() + '\n';
        static_cast<void>(write(pipe, bytes.constData(), static_cast<std::size_t>(bytes.size())));
    }

private:
    int pipe;
};

void walk(unsigned seed, const std::vector<Step>& steps, const Report& report)
{
    try {
        Walk walk(seed);
        for (const Step& step : steps) {
            report.line(begunMark);
            alarm(longestStep);
            const QString done = walk.take(step);
            report.line(doneMark, done);
            if (!done.isEmpty())
                walk.check();
        }
        walk.goHome();
    } catch (const WalkFailure& failure) {
        report.line(failureMark, QString::fromStdString(failure.what()));
    }
}

[[noreturn]] void walkAsChild(unsigned seed, const std::vector<Step>& steps, int pipe)
{
    pinSurroundings();
    FakeClock::start();
    const Home home;
    char name[] = "walk";
    char* arguments[] = {name, nullptr};
    int count = 1;
    {
        const QApplication application(count, arguments);
        AccessibleListener::start();
        walk(seed, steps, Report(pipe));
    }
    std::_Exit(0);
}

WalkResult resultOf(const QByteArray& report, int status)
{
    WalkResult result;
    for (const QByteArray& line : report.split('\n')) {
        const QString text = QString::fromUtf8(line.mid(1)).replace('\r', '\n');
        if (line.startsWith(begunMark))
            ++result.begun;
        else if (line.startsWith(doneMark))
            result.done.append(text);
        else if (line.startsWith(failureMark))
            result.failure = text;
    }
    if (result.failure.isEmpty() && status != 0)
        result.failure = WIFSIGNALED(status)
                             ? QString("The program dies of signal %1").arg(WTERMSIG(status))
                             : QString("The program ends with status %1").arg(WEXITSTATUS(status));
    return result;
}

QByteArray everythingFrom(int pipe)
{
    QByteArray all;
    char part[4096];
    for (ssize_t got = read(pipe, part, sizeof part); got > 0; got = read(pipe, part, sizeof part))
        all.append(part, got);
    return all;
}

} // namespace

WalkResult takeWalk(unsigned seed, const std::vector<Step>& steps)
{
    int ends[2];
    if (pipe(ends) != 0)
        return {.done = {}, .begun = 0, .failure = "No pipe for the walk"};
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        walkAsChild(seed, steps, ends[1]);
    }
    close(ends[1]);
    const QByteArray report = everythingFrom(ends[0]);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return resultOf(report, status);
}

std::vector<Step> shrunkSteps(unsigned seed, std::vector<Step> failing, int seconds)
{
    QElapsedTimer clock;
    clock.start();
    for (std::size_t part = std::max<std::size_t>(failing.size() / 2, 1); part > 0; part /= 2)
        for (std::size_t from = 0; from < failing.size() && clock.elapsed() < 1000LL * seconds;) {
            const std::size_t to = std::min(from + part, failing.size());
            std::vector<Step> shorter(failing.begin(), failing.begin() + static_cast<std::ptrdiff_t>(from));
            shorter.insert(shorter.end(), failing.begin() + static_cast<std::ptrdiff_t>(to), failing.end());
            const WalkResult result = takeWalk(seed, shorter);
            if (result.failure.isEmpty()) {
                from = to;
            } else {
                shorter.resize(static_cast<std::size_t>(result.begun));
                failing = std::move(shorter);
            }
        }
    return failing;
}
