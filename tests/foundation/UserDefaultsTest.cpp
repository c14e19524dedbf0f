#include "platform/foundation/UserDefaults.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString key = QStringLiteral("ReviewService.lastRequest");

QString settingsPath()
{
    return qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/marrowvale/marrowvale.ini");
}

// A file of another name has no memory of what this process wrote: it is read as after a restart.
UserDefaults afterRestart()
{
    const QString written = settingsPath();
    qputenv("XDG_CONFIG_HOME", qgetenv("XDG_CONFIG_HOME") + "/restarted");
    QDir().mkpath(QFileInfo(settingsPath()).path());
    EXPECT_TRUE(QFile::copy(written, settingsPath()));
    return UserDefaults::standard();
}

} // namespace

TEST(UserDefaults, ValuesKeepTheirTypeAcrossARestart)
{
    const QVariant values[] = {
        true,
        false,
        QStringLiteral("true"),
        QStringLiteral(""),
        QStringLiteral("text:true"),
        QStringLiteral("2021-03-05T20:15:00.000Z"),
        QStringLiteral("Mar 5, 2021; \"a\"\\\n@Invalid() % caf\u00e9"),
        QDateTime(QDate(2021, 3, 5), QTime(20, 15, 0, 123)),
    };
    auto defaults = UserDefaults::standard();
    for (int i = 0; i < int(std::size(values)); ++i)
        defaults.setObject(values[i], key + QString::number(i));
    const auto restarted = afterRestart();
    for (int i = 0; i < int(std::size(values)); ++i) {
        const auto read = restarted.objectForKey(key + QString::number(i));
        ASSERT_TRUE(read) << i;
        EXPECT_EQ(read->typeId(), values[i].typeId()) << i;
        EXPECT_EQ(*read, values[i]) << i;
        EXPECT_EQ(restarted.boolForKey(key + QString::number(i)), i == 0);
    }
}

TEST(UserDefaults, TheDirectoryIsTheUsersAlone)
{
    UserDefaults::standard().setBool(true, key);
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                        QFile::WriteOther | QFile::ExeOther;
    EXPECT_FALSE(QFileInfo(QFileInfo(settingsPath()).path()).permissions() & others);
}

TEST(UserDefaults, TheFileReadsAsAPersonWouldWriteIt)
{
    QDir().mkpath(QFileInfo(settingsPath()).path());
    QFile file(settingsPath());
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(
        "[General]\nUseDateWheel=true\nDefaultDate=\"Mar 5, 2021\"\nlastRequest=2021-03-05T20:15:00.000Z\n"
        "soon=2021-03\n");
    file.close();
    const auto defaults = UserDefaults::standard();
    EXPECT_TRUE(defaults.boolForKey("UseDateWheel"));
    EXPECT_EQ(defaults.objectForKey("DefaultDate"), QVariant("Mar 5, 2021"));
    EXPECT_EQ(defaults.objectForKey("lastRequest"),
              QVariant(QDateTime(QDate(2021, 3, 5), QTime(20, 15), Qt::UTC)));
    EXPECT_EQ(defaults.objectForKey("soon"), QVariant("2021-03")) << "not a whole moment: a text";
}

TEST(UserDefaultsDeathTest, RefusesOtherTypes)
{
    EXPECT_DEATH(UserDefaults::standard().setObject(3, key), "lastRequest");
}
