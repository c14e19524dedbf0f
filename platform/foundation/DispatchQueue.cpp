#include "platform/foundation/DispatchQueue.h"

#include <QCoreApplication>
#include <QTimer>
#include <utility>

namespace {

class EventLoopQueue final : public DispatchQueue
{
public:
    void async(Work work) override
    {
        if (auto* application = QCoreApplication::instance())
            QMetaObject::invokeMethod(application, std::move(work), Qt::QueuedConnection);
    }

    void asyncAfter(std::chrono::milliseconds delay, Work work) override
    {
        // A coarse timer may fire early, up to a twentieth of the delay.
        QTimer::singleShot(delay, Qt::PreciseTimer, QCoreApplication::instance(), std::move(work));
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
