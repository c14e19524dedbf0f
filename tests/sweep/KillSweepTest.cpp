#include "model/MarrowvaleModel.h"
#include "platform/store/Database.h"
#include "platform/store/StoreFile.h"
#include "tests/sweep/SweepRun.h"

#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

int callsUntilKill = 0;

bool isLastCall()
{
    return callsUntilKill-- == 0;
}

// Half of the bytes may still get written.
ssize_t writeOrDie(int file, const void* bytes, size_t count, off_t offset)
{
    if (!isLastCall())
        return ::pwrite(file, bytes, count, offset);
    if (offset / 4096 % 2 == 0)
        (void)(::pwrite(file, bytes, count / 2, offset) > 0);
    return ::kill(::getpid(), SIGKILL);
}

int truncateOrDie(int file, off_t size)
{
    return isLastCall() ? ::kill(::getpid(), SIGKILL) : ::ftruncate(file, size);
}

int unlinkOrDie(const char* path)
{
    return isLastCall() ? ::kill(::getpid(), SIGKILL) : ::unlink(path);
}

template <typename Function>
sqlite3_syscall_ptr callable(Function* function)
{
    return reinterpret_cast<sqlite3_syscall_ptr>(function);
}

void replaceSystemCalls()
{
    auto* files = sqlite3_vfs_find(nullptr);
    files->xSetSystemCall(files, "pwrite", callable(writeOrDie));
    files->xSetSystemCall(files, "pwrite64", callable(writeOrDie));
    files->xSetSystemCall(files, "ftruncate", callable(truncateOrDie));
    files->xSetSystemCall(files, "unlink", callable(unlinkOrDie));
}

void takeAllStages(SweepJourney& journey)
{
    for (const auto& stage : SweepJourney::stages()) {
        if (!stage.fromOldestFile)
            (journey.*stage.run)();
    }
    journey.close();
}

// Sends a letter for each save: b when it begins, a when it is acknowledged.
[[noreturn]] void takeJourneyUntilKilled(const QString& directory, int letters)
{
    const auto send = [letters](char letter) {
        if (::write(letters, &letter, 1) != 1)
            ::_exit(1);
    };
    SweepJourney journey(directory);
    journey.onSaving = [&](const QByteArrayList& /*lines*/) { send('b'); };
    journey.onSaved = [&](bool /*survivesPowerLoss*/) { send('a'); };
    replaceSystemCalls();
    takeAllStages(journey);
    ::_exit(0);
}

struct Ending
{
    bool wasKilled;
    std::size_t begun;
    std::size_t acknowledged;
};

Ending endingOf(pid_t child, int letters)
{
    Ending ending{};
    for (char letter = 0; ::read(letters, &letter, 1) == 1;) {
        if (letter == 'b')
            ++ending.begun;
        else
            ending.acknowledged = ending.begun;
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ending.wasKilled = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    return ending;
}

Ending killAt(int call, const QString& directory)
{
    int ends[2] = {};
    if (::pipe(ends) != 0)
        return {};
    callsUntilKill = call;
    const auto child = ::fork();
    if (child == 0) {
        ::close(ends[0]);
        takeJourneyUntilKilled(directory, ends[1]);
    }
    ::close(ends[1]);
    const auto ending = endingOf(child, ends[0]);
    ::close(ends[0]);
    return ending;
}

TEST(KillSweep, keepsEveryAcknowledgedSave)
{
    constexpr int stride = 7 * sweepStride;
    const QTemporaryDir place;
    SweepHistory history{{}};
    SweepJourney undisturbed(place.filePath(QStringLiteral("undisturbed")));
    history.follow(undisturbed);
    takeAllStages(undisturbed);
    SweepFigures figures{"SIGKILL on a real disk"};
    for (int call = 0;; call += stride) {
        const auto directory = place.filePath(QString::number(call));
        const auto ending = killAt(call, directory);
        if (!ending.wasKilled)
            break;
        ++figures.interruptions;
        ++figures.states;
        const auto opened = openStoreFile(directory + "/Marrowvale.sqlite", MarrowvaleModel::description());
        ASSERT_TRUE(opened) << call;
        const auto lines = linesOf(*opened.value());
        ASSERT_TRUE(lines) << call;
        EXPECT_TRUE(history.find(lines.value(), ending.acknowledged, ending.begun)) << call;
    }
    EXPECT_GT(figures.interruptions, 100 / stride);
}

} // namespace
