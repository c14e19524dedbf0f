#include "tests/store/TestStore.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

constexpr qsizetype pageSize = 4096;
constexpr int savedFilms = 16;

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void replaceFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QString logPath()
{
    return TestStore::path() + QStringLiteral("-wal");
}

// The main file before and after a checkpoint, and the log that the checkpoint copies.
struct Checkpoint
{
    QByteArray before;
    QByteArray after;
    QByteArray log;

    // The main file after the pages up to `pages` and `bytes` of the next one were written. SQLite writes
    // them in ascending order.
    [[nodiscard]] QByteArray cutShort(qsizetype pages, qsizetype bytes) const
    {
        const auto written = std::min(pages * pageSize + bytes, after.size());
        return after.first(written) + before.mid(written);
    }
    // The main file with all but the pages up to `pages` written, as a disk that writes out of order leaves
    // it.
    [[nodiscard]] QByteArray withoutFirst(qsizetype pages) const
    {
        return before.leftJustified(pages * pageSize, '\0', true) + after.mid(pages * pageSize);
    }
};

void saveFilms(qint16 year)
{
    TestStore store;
    store.connection->setCheckpointsOnClose(false);
    for (int number = 0; number < savedFilms; ++number)
        store.add(QString(300, QLatin1Char('x')), year)->setBinary(Films::Cover, QByteArray(2000, 'x'));
    ASSERT_TRUE(store.context->save());
}

// A log with two saves over a store that held one, so that pages are overwritten, split and added.
Checkpoint makeCheckpoint()
{
    saveFilms(1);
    EXPECT_TRUE(openStoreFile(TestStore::path(), testModel()));
    Checkpoint made;
    made.before = readAll(TestStore::path());
    saveFilms(2);
    made.log = readAll(logPath());
    EXPECT_EQ(readAll(TestStore::path()), made.before);
    EXPECT_TRUE(openStoreFile(TestStore::path(), testModel()));
    made.after = readAll(TestStore::path());
    EXPECT_GT(made.after.size(), made.before.size());
    return made;
}

void expectWhole(const QByteArray& mainFile, const QByteArray& log, const std::string& what)
{
    replaceFile(TestStore::path(), mainFile);
    replaceFile(logPath(), log);
    const auto opened = openStoreFile(TestStore::path(), testModel());
    ASSERT_TRUE(opened) << what << ": " << opened.error().debugText().toStdString();
    const auto expectNumber = [&](const QByteArray& sql, qint64 expected) {
        const auto number = opened.value()->number(sql);
        ASSERT_TRUE(number) << what << ": " << number.error().debugText().toStdString();
        EXPECT_EQ(number.value(), expected) << what;
    };
    expectNumber("SELECT COUNT(*) FROM Films", qint64{2} * savedFilms);
    expectNumber("SELECT COUNT(*) FROM Films_cover", qint64{2} * savedFilms);
    expectNumber("SELECT COUNT(*) FROM pragma_integrity_check WHERE integrity_check = 'ok'", 1);
}

TEST(Checkpoint, thatIsCutShortAnywhereLosesNothing)
{
    const auto checkpoint = makeCheckpoint();
    for (qsizetype pages = 0; pages * pageSize <= checkpoint.after.size(); ++pages) {
        const auto place = std::to_string(pages);
        for (const qsizetype bytes : {qsizetype(0), qsizetype(512)})
            expectWhole(checkpoint.cutShort(pages, bytes), checkpoint.log, "up to page " + place);
        expectWhole(checkpoint.withoutFirst(pages), checkpoint.log, "from page " + place);
    }
}

// A small cache brings the changes of an unfinished transaction into the file early.
TEST(Journal, undoesAWriteThatWasCutShort)
{
    saveFilms(1);
    const auto journalPath = TestStore::path() + QStringLiteral("-journal");
    QByteArray mainFile;
    QByteArray journal;
    {
        const auto opened = Database::open(TestStore::path(), Database::Access::ReadWrite);
        for (const auto* statement :
             {"PRAGMA journal_mode = DELETE", "PRAGMA cache_size = 2", "BEGIN", "UPDATE Films SET year = 2",
              "UPDATE Films_cover SET cover = 'half' || zeroblob(1996)"})
            ASSERT_TRUE(opened.value()->run(statement)) << statement;
        mainFile = readAll(TestStore::path());
        journal = readAll(journalPath);
        ASSERT_TRUE(mainFile.contains("half"));
    }
    replaceFile(TestStore::path(), mainFile);
    replaceFile(journalPath, journal);
    ASSERT_TRUE(openStoreFile(TestStore::path(), testModel()));
    EXPECT_EQ(TestStore::saved("SELECT COUNT(*) FROM Films WHERE year = 1"), savedFilms);
    EXPECT_EQ(TestStore::saved("SELECT COUNT(*) FROM Films_cover"), savedFilms);
}

} // namespace
