#pragma once

#include <chrono>
#include <functional>

// Where work waits for its turn on the user interface's thread. Work runs in the order of its due times,
// equal ones in the order given, and never before the call that queued it has returned; it may be queued from
// any thread.
class DispatchQueue
{
public:
    using Work = std::function<void()>;

    // Puts `queue` in the place of the main queue for as long as the scope lives; scopes nest. `queue` must
    // outlive it.
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
    // object is destroyed, and what is queued before that object is made or after it is gone never runs.
    static DispatchQueue& main();

    virtual void async(Work work) = 0;
    virtual void asyncAfter(std::chrono::milliseconds delay, Work work) = 0;
};
