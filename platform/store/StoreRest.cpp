#include "platform/store/StoreRest.h"

#include "platform/foundation/Background.h"
#include "platform/store/StoreGeneration.h"

namespace {

// Two seconds of quiet, looked at often enough to begin soon after them.
constexpr std::chrono::milliseconds tick(500);
constexpr int quietTicksUntilRest = 4;

} // namespace

StoreRest::StoreRest(QString path)
    : path(std::move(path))
{
    if (hasLog(this->path))
        noteSave(success());
}

StoreRest::~StoreRest()
{
    if (saves > 0)
        // Ignored: the log stays, and the next opening reads it.
        (void)moveLogIntoFile(path).ok();
}

void StoreRest::noteSave(const Status& saved)
{
    if (!saved)
        return;
    ++saves;
    quietTicks = 0;
    if (!std::exchange(isWaiting, true))
        waitForRest();
}

void StoreRest::waitForRest()
{
    DispatchQueue::main().asyncAfter(tick, [rest = QPointer(this)] {
        if (!rest)
            return;
        if (++rest->quietTicks < quietTicksUntilRest)
            rest->waitForRest();
        else
            rest->moveLog();
    });
}

void StoreRest::moveLog()
{
    background(Pool::inOrder(), [path = path] {
        return moveLogIntoFile(path).ok();
    }).then(*this, [this, before = saves](bool isMoved) { finishMove(isMoved ? before : 0); });
}

void StoreRest::finishMove(quint64 movedSaves)
{
    saves -= movedSaves;
    quietTicks = 0;
    isWaiting = saves > 0;
    if (isWaiting)
        waitForRest();
}
