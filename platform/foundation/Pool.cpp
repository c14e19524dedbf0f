#include "platform/foundation/Pool.h"

#include <QCoreApplication>
#include <QThreadPool>
#include <thread>
#include <utility>

namespace {

class ThreadPool final : public Pool
{
public:
    explicit ThreadPool(int threads) { pool.setMaxThreadCount(threads); }

    void start(Task task) override { pool.start(std::move(task)); }
    void waitForDone() { pool.waitForDone(); }

private:
    QThreadPool pool;
};

// A QThreadPool can't serve here, because its destructor waits.
class DetachedThreads final : public Pool
{
public:
    void start(Task task) override { std::thread(std::move(task)).detach(); }
};

struct Pools
{
    // The pools' own destructors would come too late: what runs needs the application's fonts.
    Pools() { qAddPostRoutine(waitForDone); }

    static void waitForDone();

    ThreadPool threads{QThread::idealThreadCount()};
    ThreadPool thread{1};
    Pool* allCores = &threads;
    Pool* inOrder = &thread;
};

Pools& pools()
{
    static Pools made;
    return made;
}

void Pools::waitForDone()
{
    pools().thread.waitForDone();
    pools().threads.waitForDone();
}

} // namespace

Pool::Scope::Scope(Pool& allCores, Pool& inOrder)
    : previousAllCores(std::exchange(pools().allCores, &allCores))
    , previousInOrder(std::exchange(pools().inOrder, &inOrder))
{
}

Pool::Scope::~Scope()
{
    pools().allCores = previousAllCores;
    pools().inOrder = previousInOrder;
}

Pool& Pool::allCores()
{
    return *pools().allCores;
}

Pool& Pool::inOrder()
{
    return *pools().inOrder;
}

Pool& Pool::mayHang()
{
    static DetachedThreads threads;
    return threads;
}
