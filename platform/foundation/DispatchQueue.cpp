#include "platform/foundation/DispatchQueue.h"

#include <QCoreApplication>
#include <QThreadPool>
#include <QTimer>
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

class ThreadPoolQueue final : public DispatchQueue
{
public:
    void async(Work work) override { QThreadPool::globalInstance()->start(std::move(work)); }

    void asyncAfter(std::chrono::milliseconds delay, Work work) override
    {
        DispatchQueue::main().asyncAfter(delay, [this, work = std::move(work)] { async(work); });
    }
};

class ImmediateQueue final : public DispatchQueue
{
public:
    void async(Work work) override { work(); }
    void asyncAfter(std::chrono::milliseconds delay, Work work) override
    {
        DispatchQueue::main().asyncAfter(delay, std::move(work));
    }
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
