#pragma once

#include <functional>

// Where work off the main thread waits for its turn. background() is the way in for work with a result.
// Unless said otherwise, tasks that were started always run: the end of the application object waits for
// them, because they may need its fonts, and the user may have asked for the files that they write.
class Pool
{
public:
    // Must not throw.
    using Task = std::function<void()>;

    // Replaces allCores() and inOrder() for as long as it lives; scopes nest. The pools must outlive it.
    // Constructed and destroyed on the main thread, while no task runs.
    class Scope
    {
    public:
        Scope(Pool& allCores, Pool& inOrder);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        Pool* previousAllCores;
        Pool* previousInOrder;
    };

    virtual ~Pool() = default;

    // One thread for each core, for work that is done sooner by many.
    static Pool& allCores();
    // One thread, which runs tasks one after the other in the order in which they were started: for files
    // that several tasks write.
    static Pool& inOrder();
    // A thread for each task, for code that isn't ours and may never return. It takes no core from the other
    // pools, and the end of the program doesn't wait for it: it is cut off wherever it is then. No scope
    // replaces this pool.
    static Pool& mayHang();

    // Runs `task` later on a thread of the pool. Called on the main thread.
    virtual void start(Task task) = 0;
};
