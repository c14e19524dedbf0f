#pragma once

#include <chrono>
#include <functional>

// Where work waits for its turn. On the main queue, that of the user interface's thread, work runs in the
// order of its due times, equal ones in the order given, and never before the call that queued it has
// returned; it may be queued from any thread.
class DispatchQueue
{
public:
    using Work = std::function<void()>;

    // Puts `queue` in the place of the main queue for as long as the scope lives; scopes nest. `queue` must
    // outlive it. Meanwhile the queues for other threads run their work at once.
    class MainScope
    {
    public:
        explicit MainScope(DispatchQueue& queue);
        ~MainScope();
        MainScope(const MainScope&) = delete;
        MainScope& operator=(const MainScope&) = delete;

    private:
        DispatchQueue* previous;
    };

    virtual ~DispatchQueue() = default;

    // The application's event loop unless a scope says otherwise. Its work is dropped when the application
    // object goes; that object must exist whenever something is queued.
    static DispatchQueue& main();
    // Threads of its own, one for each core, for work that would keep the user waiting. The end of the
    // process waits for it.
    static DispatchQueue& global();
    // The same, but for one thing after the other, in the order given.
    static DispatchQueue& serial();

    virtual void async(Work work) = 0;
    virtual void asyncAfter(std::chrono::milliseconds delay, Work work) = 0;
};
