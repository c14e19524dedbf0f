#include "platform/foundation/TerminationSignals.h"

#include <QCoreApplication>
#include <QTimer>
#include <csignal>
#include <gtest/gtest.h>

namespace {

TEST(TerminationSignalsDeathTest, TheFirstEndsTheLoopASecondTheProgramAndAnIgnoredOneNothing)
{
    ::signal(SIGHUP, SIG_IGN);
    quitAtTerminationSignals(*QCoreApplication::instance());
    ::raise(SIGHUP);
    for (const int signal : {SIGTERM, SIGINT}) {
        QTimer::singleShot(0, [signal] { ::raise(signal); });
        EXPECT_EQ(QCoreApplication::exec(), 0);
        EXPECT_EXIT(::raise(signal), testing::KilledBySignal(signal), "");
    }
}

} // namespace
