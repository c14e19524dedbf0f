#include "platform/foundation/DispatchQueue.h"

#include <QCoreApplication>
#include <QThreadPool>
#include <QTimer>
#include <deque>
#include <mutex>
#include <utility>

namespace {

class EventLoopQueue final : public DispatchQueue
{
public:
    void async(Work work) override
    {
        QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(work), Qt::QueuedConnection);
    }

    void asyncAfter(std::chrono::milliseconds delay, Work work) override
    {
        // A coarse timer may fire early, up to a twentieth of the delay.
        QTimer::singleShot(delay, Qt::PreciseTimer, QCoreApplication::instance(), std::move(work));
    }
};

// Time passes on the main queue.
class OtherThreadsQueue : public DispatchQueue
{
public:
    void asyncAfter(std::chrono::milliseconds delay, Work work) override
    {
        DispatchQueue::main().asyncAfter(delay, [this, work = std::move(work)] { async(work); });
    }
};

class ThreadPoolQueue final : public OtherThreadsQueue
{
public:
    void async(Work work) override { QThreadPool::globalInstance()->start(std::move(work)); }
};

class OneAtATimeQueue final : public OtherThreadsQueue
{
public:
    void async(Work work) override
    {
        {
            const std::lock_guard lock(mutex);
            waiting.push_back(std::move(work));
            if (std::exchange(running, true))
                return;
        }
        DispatchQueue::global().async([this] {
            while (const Work next = takeNext())
                next();
        });
    }

private:
    // Empty: nothing waits any more.
    Work takeNext()
    {
        const std::lock_guard lock(mutex);
        running = !waiting.empty();
        if (!running)
            return {};
        Work next = std::move(waiting.front());
        waiting.pop_front();
        return next;
    }

    std::mutex mutex;
    std::deque<Work> waiting;
    bool running = false;
};

class ImmediateQueue final : public OtherThreadsQueue
{
public:
    void async(Work work) override { work(); }
};

DispatchQueue& eventLoop()
{
    static EventLoopQueue queue;
    return queue;
}

DispatchQueue*& installedMainQueue()
{
    static DispatchQueue* installed = &eventLoop();
    return installed;
}

} // namespace

DispatchQueue::MainScope::MainScope(DispatchQueue& queue)
    : previous(std::exchange(installedMainQueue(), &queue))
{
}

DispatchQueue::MainScope::~MainScope()
{
    installedMainQueue() = previous;
}

DispatchQueue& DispatchQueue::main()
{
    return *installedMainQueue();
}

DispatchQueue& DispatchQueue::global()
{
    static ThreadPoolQueue threads;
    static ImmediateQueue immediate;
    if (installedMainQueue() == &eventLoop())
        return threads;
    return immediate;
}

DispatchQueue& DispatchQueue::serial()
{
    static OneAtATimeQueue queue;
    return queue;
}
