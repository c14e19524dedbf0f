#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "tests/support/ImmediatePool.h"

#include <map>

// The main queue for as long as it lives, with a clock that moves only by hand. Meanwhile the pools run their
// tasks at once, so that a whole journey stays on the test's thread.
class ManualQueue final : public DispatchQueue
{
public:
    void async(Work work) override { asyncAfter({}, std::move(work)); }
    void asyncAfter(std::chrono::milliseconds delay, Work work) override
    {
        waiting.emplace(now + delay, std::move(work));
    }

    // Moves the clock on and runs what is due on the way, in order: also what that work itself queues.
    void advance(std::chrono::milliseconds step)
    {
        const auto target = now + step;
        while (!waiting.empty() && waiting.begin()->first <= target) {
            const auto next = waiting.extract(waiting.begin());
            now = next.key();
            next.mapped()();
        }
        now = target;
    }

    [[nodiscard]] std::size_t pending() const { return waiting.size(); }

private:
    std::chrono::milliseconds now{};
    std::multimap<std::chrono::milliseconds, Work> waiting;
    const MainScope scope{*this};
    ImmediatePool pool;
    const Pool::Scope poolScope{pool, pool};
};
