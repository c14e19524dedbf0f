#include "platform/foundation/DispatchQueue.h"
#include "tests/support/ManualQueue.h"

#include <QEventLoop>
#include <atomic>
#include <numeric>
#include <thread>

using namespace std::chrono_literals;

TEST(DispatchQueue, IsTheEventLoopOutsideEveryScope)
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

TEST(DispatchQueue, SerialWorkKeepsItsOrderOnOtherThreads)
{
    std::vector<int> ran;
    std::atomic<int> under = 0;
    QEventLoop loop;
    for (int number = 0; number < 50; ++number)
        DispatchQueue::serial().async([&, number] {
            EXPECT_EQ(under++, 0) << "one at a time";
            std::this_thread::sleep_for(number % 5 * 100us);
            ran.push_back(number);
            --under;
        });
    DispatchQueue::serial().async([&] { DispatchQueue::main().async([&] { loop.quit(); }); });
    loop.exec();
    std::vector<int> expected(50);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(ran, expected);
}
