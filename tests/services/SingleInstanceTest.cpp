#include "platform/services/SingleInstance.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QString folder(const char* name)
{
    return qEnvironmentVariable("XDG_DATA_HOME") + QLatin1Char('/') + QLatin1String(name);
}

std::unique_ptr<SingleInstance> started(const QString& where)
{
    return std::make_unique<SingleInstance>(where, QStringLiteral("example.test"));
}

TEST(SingleInstance, OneProgramAtATimeHoldsAFolder)
{
    auto first = started(folder("one"));
    EXPECT_TRUE(first->isFirst());
    EXPECT_FALSE(started(folder("one"))->isFirst());
    EXPECT_TRUE(started(folder("other"))->isFirst());
    first.reset();
    EXPECT_TRUE(started(folder("one"))->isFirst());
}

TEST(SingleInstance, AKilledProgramHoldsNothing)
{
    const auto killed = ::fork();
    if (killed == 0) {
        const auto held = started(folder("killed"));
        ::_exit(held->isFirst() ? 0 : 1);
    }
    int status = 0;
    ::waitpid(killed, &status, 0);
    ASSERT_EQ(WEXITSTATUS(status), 0);
    ASSERT_TRUE(QFile::exists(folder("killed") + QStringLiteral("/running.lock")));
    EXPECT_TRUE(started(folder("killed"))->isFirst());
}

} // namespace
