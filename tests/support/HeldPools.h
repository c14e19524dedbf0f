#pragma once

#include "platform/foundation/Pool.h"

#include <deque>
#include <random>

// Both pools for as long as it lives. What is started waits until the test runs it, on the test's own thread.
class HeldPools
{
public:
    enum class Order { AsStarted, Reversed, Shuffled };

    explicit HeldPools(Order order, unsigned seed = 0)
        : order(order)
        , random(seed)
    {
    }

    // Runs one of the waiting tasks; false if there is none. `order` is that of all cores and of the two
    // pools among each other: what is started in order runs in order.
    bool runOne()
    {
        const std::size_t candidates = cores.waiting.size() + (ordered.waiting.empty() ? 0 : 1);
        if (candidates == 0)
            return false;
        const std::size_t chosen = choose(candidates);
        std::deque<Pool::Task>& from = chosen < cores.waiting.size() ? cores.waiting : ordered.waiting;
        const auto place = from.begin() + std::ptrdiff_t(&from == &cores.waiting ? chosen : 0);
        const Pool::Task task = std::move(*place);
        from.erase(place);
        task();
        return true;
    }

private:
    struct Holding final : Pool
    {
        void start(Task task) override { waiting.push_back(std::move(task)); }
        std::deque<Task> waiting;
    };

    std::size_t choose(std::size_t candidates)
    {
        switch (order) {
        case Order::AsStarted:
            return 0;
        case Order::Reversed:
            return candidates - 1;
        case Order::Shuffled:
            break;
        }
        return std::uniform_int_distribution<std::size_t>(0, candidates - 1)(random);
    }

    const Order order;
    std::mt19937 random;
    Holding cores;
    Holding ordered;
    const Pool::Scope scope{cores, ordered};
};
