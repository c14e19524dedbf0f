#pragma once

#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/Pool.h"

#include <QFuture>
#include <QObject>
#include <QPointer>
#include <QPromise>
#include <memory>
#include <optional>
#include <type_traits>

// Work that waits for its continuation; see background().
//
// Continuations go through DispatchQueue::main() rather than through QFuture::then(context, ...): Qt 6.4
// asserts there when the context is destroyed before the work ends, and calls the continuation at once when
// both are on one thread.
template <typename Work>
class [[nodiscard]] Background
{
public:
    using Value = std::invoke_result_t<Work&>;

    Background(Pool& pool, Work work)
        : pool(pool)
        , work(std::move(work))
    {
    }

    // Starts the work. Calls `continuation` with its result on the main queue, never before this returns and
    // not at all once `owner` is destroyed; the work itself runs without its owner, too. Both the
    // continuation and what it holds are destroyed on the main thread.
    //
    // cancel() on what this returns, called on the main thread, means that the continuation isn't called, and
    // that work that has not begun doesn't begin. Dropping the future cancels nothing. It is finished when
    // the work is; the continuation takes the result out of it.
    template <typename Continuation>
    QFuture<Value> then(QObject& owner, Continuation continuation) &&
    {
        QPromise<Value> promise;
        promise.start();
        const QFuture<Value> future = promise.future();
        // The queue may copy what it runs, and the thread of the work may drop the last copy: what the
        // continuation holds is taken out of all of them first.
        auto held = std::make_shared<std::optional<Continuation>>(std::move(continuation));
        auto deliver = [owner = QPointer(&owner), held, outcome = future]() mutable {
            auto once = std::exchange(*held, std::nullopt);
            if (owner && !outcome.isCanceled())
                (*once)(outcome.takeResult());
        };
        auto job = std::make_shared<Job>(std::move(promise), std::move(work), std::move(deliver));
        pool.start([job = std::move(job)] { job->run(); });
        return future;
    }

private:
    struct Job
    {
        Job(QPromise<Value> promise, Work work, DispatchQueue::Work deliver)
            : promise(std::move(promise))
            , work(std::move(work))
            , deliver(std::move(deliver))
        {
        }

        // What the work holds goes before its result is delivered, so that the continuation finds it
        // released.
        void run()
        {
            if (auto once = std::exchange(work, std::nullopt); once && !promise.isCanceled())
                promise.addResult((*once)());
            promise.finish();
            DispatchQueue::main().async(std::exchange(deliver, nullptr));
        }

        QPromise<Value> promise;
        std::optional<Work> work;
        DispatchQueue::Work deliver;
    };

    Pool& pool;
    Work work;
};

// The one way off the main thread: background(pool, work).then(owner, continuation). `work` must not throw
// and returns a value; what it holds is destroyed on the thread that runs it. Called on the main thread.
template <typename Work>
Background<Work> background(Pool& pool, Work work)
{
    return Background<Work>(pool, std::move(work));
}
