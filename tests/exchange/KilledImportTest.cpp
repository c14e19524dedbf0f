#include "model/MarrowvaleModel.h"
#include "platform/store/Database.h"
#include "tests/exchange/ChildProcess.h"
#include "tests/exchange/ImportFixture.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>

namespace {

constexpr int filmCount = 3000;
constexpr int kills = 50;
constexpr qint64 logGrowthPerKill = 60'000;

QByteArray coverOf(int film)
{
    return QByteArray(1500, static_cast<char>(film % 128));
}

QStringList films()
{
    QStringList lines;
    for (int film = 0; film < filmCount; ++film)
        lines.append(QString("a^^d^g^Film %1^v^p^r^%1^1999^n^").arg(film) +
                     QString::fromLatin1(coverOf(film).toBase64()));
    return lines;
}

QString integrityOf(const QString& path)
{
    const auto database = Database::open(path, Database::Access::ReadWrite);
    Query check = database.value()->query("PRAGMA integrity_check");
    EXPECT_TRUE(check.step().value());
    return QString::fromUtf8(check.text(0));
}

// How many films there are, all of them whole, after the header: the first ones of the file.
int wholeFilms()
{
    NSPersistentContainer container("Marrowvale", MarrowvaleModel::description());
    EXPECT_TRUE(container.loadPersistentStores().ok());
    const auto movies = container.viewContext().fetch<Movies>(Movies::fetchRequest()).value();
    int film = -1;
    for (const auto& movie : movies) {
        if (film >= 0) {
            EXPECT_EQ(movie->movieName(), QString("Film %1").arg(film));
            EXPECT_EQ(movie->runTime(), film);
            EXPECT_EQ(movie->notes(), QString("n"));
            EXPECT_EQ(movie->frontCover(), coverOf(film));
        }
        ++film;
    }
    return film;
}

TEST_F(ImportTest, KilledAtAnyMomentItLeavesTheFirstLinesWhole)
{
    const QStringList lines = films();
    for (int round = 0; round < kills; ++round) {
        const QTemporaryDir data;
        qputenv("XDG_DATA_HOME", data.path().toUtf8());
        const QString store = data.filePath("marrowvale/Marrowvale.sqlite");
        ChildProcess child([&] { importLines(lines); });
        while (child.isRunning() && QFileInfo(store + "-wal").size() <= round * logGrowthPerKill)
            QThread::usleep(50);
        child.kill();
        ASSERT_EQ(child.signalThatEndedIt(), SIGKILL);
        const int found = wholeFilms();
        EXPECT_LT(found, filmCount);
        EXPECT_GT(found, round > kills / 2 ? 0 : -2);
        ASSERT_EQ(integrityOf(store), QString("ok"));
    }
}

} // namespace
