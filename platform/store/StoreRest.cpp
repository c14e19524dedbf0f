#include "platform/store/StoreRest.h"

#include "platform/foundation/DispatchQueue.h"
#include "platform/store/StoreGeneration.h"

#include <QString>
#include <chrono>

namespace {

// Two seconds of quiet, looked at often enough to begin soon after them.
constexpr std::chrono::milliseconds tick(500);
constexpr int quietTicksUntilRest = 4;

} // namespace

// Outlives the object while work that was queued still holds it.
struct StoreRest::State
{
    QString path;
    // Saves since the log was last empty, as far as this program knows.
    quint64 saves = 0;
    int quietTicks = 0;
    bool isWaiting = false;
    bool isOver = false;
};

StoreRest::StoreRest(QString path)
    : state(std::make_shared<State>())
{
    state->path = std::move(path);
    if (hasLog(state->path))
        noteSave(success());
}

StoreRest::~StoreRest()
{
    state->isOver = true;
    // Ignored: the log stays, and the next opening reads it.
    if (state->saves > 0)
        (void)moveLogIntoFile(state->path).ok();
}

void StoreRest::noteSave(const Status& saved)
{
    if (!saved)
        return;
    ++state->saves;
    state->quietTicks = 0;
    if (!std::exchange(state->isWaiting, true))
        waitForRest(state);
}

void StoreRest::waitForRest(const std::shared_ptr<State>& state)
{
    DispatchQueue::main().asyncAfter(tick, [state] {
        if (state->isOver)
            return;
        if (++state->quietTicks < quietTicksUntilRest)
            waitForRest(state);
        else
            moveLog(state);
    });
}

void StoreRest::moveLog(const std::shared_ptr<State>& state)
{
    DispatchQueue::serial().async([state, path = state->path, before = state->saves] {
        const bool isMoved = moveLogIntoFile(path).ok();
        DispatchQueue::main().async([state, isMoved, before] {
            if (isMoved)
                state->saves -= before;
            state->quietTicks = 0;
            state->isWaiting = state->saves > 0;
            if (state->isWaiting)
                waitForRest(state);
        });
    });
}
