#include "tests/support/Home.h"
#include "tests/support/Surroundings.h"

#include <QApplication>
#include <gtest/gtest.h>

namespace {

class FreshHomePerTest : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo&) override { home.emplace(); }
    void OnTestEnd(const testing::TestInfo&) override { home.reset(); }

    std::optional<Home> home;
};

} // namespace

int main(int argc, char** argv)
{
    pinSurroundings();
    testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const Home outermost;
    const QApplication application(argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new FreshHomePerTest);
    return RUN_ALL_TESTS();
}
