#include "platform/foundation/TemporaryFolder.h"

#include <QDir>
#include <QFileInfo>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

void leaveFile(const QString& folder)
{
    QFile file(folder + QStringLiteral("/left"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
}

QStringList entriesOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

// Returns the path of a folder whose process was killed.
QString killedProcessesFolder()
{
    int ends[2] = {};
    EXPECT_EQ(::pipe(ends), 0);
    const auto child = ::fork();
    if (child == 0) {
        TemporaryFolder folder;
        leaveFile(folder.path());
        const auto path = folder.path().toUtf8();
        (void)(::write(ends[1], path.constData(), static_cast<std::size_t>(path.size())) == path.size());
        ::raise(SIGKILL);
    }
    ::close(ends[1]);
    ::waitpid(child, nullptr, 0);
    QByteArray path(4096, '\0');
    path.truncate(::read(ends[0], path.data(), static_cast<std::size_t>(path.size())));
    ::close(ends[0]);
    return QString::fromUtf8(path);
}

TEST(TemporaryFolder, isTheUsersAloneAndGoesWithWhatIsInIt)
{
    constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                            QFile::WriteOther | QFile::ExeOther;
    ::umask(0);
    QString path;
    {
        TemporaryFolder folder;
        path = folder.path();
        leaveFile(path);
        EXPECT_TRUE(path.startsWith(qEnvironmentVariable("XDG_CACHE_HOME")));
        for (const auto& place : {path, QFileInfo(path).path()})
            EXPECT_EQ(QFile::permissions(place) & others, QFile::Permissions()) << place.toStdString();
    }
    EXPECT_EQ(entriesOf(QFileInfo(path).path()), QStringList());
}

TEST(TemporaryFolder, takesAwayWhatKilledProgramsLeftAndLeavesTheOthers)
{
    const auto left = killedProcessesFolder();
    ASSERT_EQ(entriesOf(left), QStringList(QStringLiteral("left")));
    TemporaryFolder running;
    EXPECT_FALSE(QFileInfo::exists(left));
    leaveFile(running.path());
    ::fflush(nullptr);
    const auto other = ::fork();
    if (other == 0) {
        {
            TemporaryFolder second;
        }
        ::_exit(0);
    }
    ::waitpid(other, nullptr, 0);
    EXPECT_EQ(entriesOf(running.path()), QStringList(QStringLiteral("left")));
}

} // namespace
