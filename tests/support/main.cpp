#include "tests/support/Home.h"

#include <QApplication>
#include <QHashSeed>
#include <QLocale>
#include <gtest/gtest.h>

namespace {

// What a test may depend on without saying so is the same on every machine.
void pinSurroundings()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("LC_ALL", "en_US.UTF-8");
    qputenv("LANGUAGE", "en_US");
    qputenv("TZ", "America/New_York");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    QHashSeed::setDeterministicGlobalSeed();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

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
