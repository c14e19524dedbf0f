#include "platform/foundation/Background.h"
#include "tests/support/HeldPools.h"
#include "tests/support/ManualQueue.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <atomic>
#include <numeric>

using namespace std::chrono_literals;

namespace {

// Remembers the thread that destroyed it.
struct Witness
{
    explicit Witness(QThread*& destroyedOn)
        : destroyedOn(destroyedOn)
    {
    }
    ~Witness() { destroyedOn = QThread::currentThread(); }
    Q_DISABLE_COPY_MOVE(Witness)

    QThread*& destroyedOn;
};

// Lets `pool` run what was started before, and the main queue what came of it.
void settle(Pool& pool)
{
    QObject owner;
    QEventLoop loop;
    background(pool, [] { return true; }).then(owner, [&](bool) { loop.quit(); });
    loop.exec();
}

TEST(DispatchQueueTest, IsTheEventLoopOutsideEveryScope)
{
    auto& ordinary = DispatchQueue::main();
    {
        const ManualQueue outer;
        {
            const ManualQueue inner;
            EXPECT_EQ(&DispatchQueue::main(), &inner);
        }
        EXPECT_EQ(&DispatchQueue::main(), &outer);
    }
    ASSERT_EQ(&DispatchQueue::main(), &ordinary);

    QString ran;
    QEventLoop loop;
    ordinary.asyncAfter(2ms, [&] {
        ran += u'b';
        loop.quit();
    });
    ordinary.async([&] { ran += u'a'; });
    EXPECT_EQ(ran, QString());
    loop.exec();
    EXPECT_EQ(ran, QStringLiteral("ab"));
}

TEST(BackgroundTest, WorkInOrderRunsOneAtATimeAndContinuesOnTheMainThread)
{
    QObject owner;
    std::atomic<int> under = 0;
    std::vector<int> continued;
    for (int number = 0; number < 50; ++number)
        background(Pool::inOrder(), [&under, number] {
            EXPECT_EQ(under++, 0);
            EXPECT_NE(QThread::currentThread(), QCoreApplication::instance()->thread());
            QThread::usleep(number % 5UL * 100);
            --under;
            return number;
        }).then(owner, [&continued](int number) {
            EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
            continued.push_back(number);
        });
    EXPECT_TRUE(continued.empty());
    settle(Pool::inOrder());
    std::vector<int> expected(50);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(continued, expected);
}

TEST(BackgroundTest, OwnersGoAwayAndWorkIsCancelledAtAnyTime)
{
    ManualQueue queue;
    HeldPools held(HeldPools::Order::AsStarted);
    enum When { Never, BeforeTheWork, BeforeTheContinuation };
    for (const When gone : {Never, BeforeTheWork, BeforeTheContinuation})
        for (const When cancelled : {Never, BeforeTheWork, BeforeTheContinuation}) {
            SCOPED_TRACE(testing::Message() << gone << " " << cancelled);
            auto owner = std::make_unique<QObject>();
            bool worked = false;
            bool continued = false;
            auto future = background(Pool::allCores(), [&worked] {
                              return worked = true;
                          }).then(*owner, [&continued](bool) { continued = true; });
            const auto disturb = [&](When now) {
                if (gone == now)
                    owner.reset();
                if (cancelled == now)
                    future.cancel();
            };
            disturb(BeforeTheWork);
            EXPECT_TRUE(held.runOne());
            EXPECT_FALSE(continued);
            disturb(BeforeTheContinuation);
            queue.advance({});
            EXPECT_EQ(worked, cancelled != BeforeTheWork);
            EXPECT_EQ(continued, gone == Never && cancelled == Never);
        }
}

TEST(BackgroundTest, WhatAContinuationHoldsIsDestroyedOnTheMainThread)
{
    QThread* workReleased = nullptr;
    QThread* continuationReleased = nullptr;
    auto owner = std::make_unique<QObject>();
    background(Pool::inOrder(), [held = std::make_shared<Witness>(workReleased)] {
        return 0;
    }).then(*owner, [held = std::make_shared<Witness>(continuationReleased)](int) { FAIL(); });
    owner.reset();
    settle(Pool::inOrder());
    EXPECT_NE(workReleased, nullptr);
    EXPECT_NE(workReleased, QThread::currentThread());
    EXPECT_EQ(continuationReleased, QThread::currentThread());
}

} // namespace
