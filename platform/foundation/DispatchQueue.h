#pragma once

#include <chrono>
#include <functional>

// Where work waits for its turn on the thread of the user interface. Work runs in the order of its due times,
// equal ones in the order given, and never before the call that queued it has returned.
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
    // object goes; that object must exist whenever something is queued.
    static DispatchQueue& main();

    virtual void async(Work work) = 0;
    virtual void asyncAfter(std::chrono::milliseconds delay, Work work) = 0;
};
