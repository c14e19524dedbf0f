#include "platform/store/BackupFolder.h"
#include "platform/store/BackupFacts.h"
#include "platform/store/StoreGeneration.h"
#include "tests/store/TestStore.h"

#include <QElapsedTimer>
#include <QTimeZone>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Of the test's model, with one more migration.
NSManagedObjectModel laterModel(const QByteArray& statement)
{
    NSManagedObjectModel later = testModel();
    later.migrations.push_back({"later", {statement}});
    return later;
}

class BackupFolderTest : public testing::Test
{
protected:
    static QString folder() { return TestStore::directory() + "/backups/"; }
    static QStringList files() { return QDir(folder()).entryList(QDir::Files); }
    static void write(const QString& path, const QByteArray& content, qint64 position)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.seek(position));
        ASSERT_EQ(file.write(content), content.size());
    }
    void save(const QStringList& titles)
    {
        for (const QString& title : titles)
            store.add(title)->setBinary(Films::Cover, QByteArray(20'000, 'x'));
        ASSERT_TRUE(store.context->save());
    }
    BackupFacts factsOf(const BackupName& backup)
    {
        return inspectBackup(backups.pathOf(backup), testModel(), "Films");
    }

    TestStore store;
    const BackupFolder backups{TestStore::path()};
};

TEST_F(BackupFolderTest, ACopyIsOneWholeFileForTheOwnerAlone)
{
    save({"Alien", "Brazil"});
    store.add("Casablanca");
    const auto made = backups.make(BackupReason::BeforeImport);
    ASSERT_TRUE(made) << qPrintable(problemOf(made));
    EXPECT_EQ(factsOf(made.value()), (BackupFacts{BackupState::Sound, 2}));
    EXPECT_EQ(files(), QStringList(made.value().fileName()));
    constexpr auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(QFile::permissions(backups.pathOf(made.value())), owner);
    EXPECT_EQ(QFile::permissions(folder()), owner | QFile::ExeOwner | QFile::ExeUser);
    const auto again = backups.make(BackupReason::BeforeImport);
    EXPECT_EQ(backups.list(), (std::vector{again.value(), made.value()}));
}

TEST_F(BackupFolderTest, WhatKilledRunsLeftGoesAndWhatIsNotOursStays)
{
    save({"Alien"});
    ASSERT_TRUE(backups.make(BackupReason::Automatic));
    const QString unfinished = "2026-11-24T04-04-39.123Z-automatic.sqlite.part";
    const QStringList foreign{"2026-11-24T04-04-39.123Z-mine.sqlite.part", "notes.txt", "x.part"};
    for (const QString& name : foreign + QStringList{unfinished, unfinished + "-journal"})
        write(folder() + name, "x", 0);
    backups.thin(QDateTime::currentDateTimeUtc().addYears(50), QTimeZone::utc());
    ASSERT_TRUE(backups.make(BackupReason::Automatic));
    EXPECT_EQ(backups.list().size(), 2U);
    for (const QString& name : foreign)
        EXPECT_TRUE(files().contains(name)) << qPrintable(name);
    EXPECT_EQ(files().size(), foreign.size() + 2);
}

TEST_F(BackupFolderTest, ADamagedStoreMakesNoCopyAndCanBeSetAsideAndReplaced)
{
    save({"Alien", "Brazil"});
    const BackupName sound = backups.make(BackupReason::Automatic).value();
    store.context.reset();
    // The root page of the films.
    const qint64 root = TestStore::saved("SELECT rootpage FROM sqlite_schema WHERE name = 'Films'");
    const qint64 pageSize = TestStore::saved("PRAGMA page_size");
    write(TestStore::path(), QByteArray(200, '\x7f'), (root - 1) * pageSize);
    const auto refused = backups.make(BackupReason::Automatic);
    ASSERT_FALSE(refused);
    EXPECT_TRUE(isStoreDamaged(refused.error())) << qPrintable(refused.error().debugText());
    EXPECT_EQ(files(), QStringList(sound.fileName()));
    EXPECT_TRUE(backups.setAside());
    EXPECT_TRUE(backups.restore(sound, testModel()));
    store.reopen();
    EXPECT_EQ(titlesOf(store.all()), "Alien Brazil");
    EXPECT_EQ(files().filter("damaged-").size(), 1);
}

TEST_F(BackupFolderTest, WithoutRoomForTwiceTheStoreNothingIsTried)
{
    save({"Alien"});
    const qint64 size = QFileInfo(TestStore::path()).size() + QFileInfo(TestStore::path() + "-wal").size();
    qint64 room = 2 * size - 1;
    const BackupFolder narrow(TestStore::path(), [&](const QString& /*path*/) { return room; });
    const auto refused = narrow.make(BackupReason::Automatic);
    ASSERT_FALSE(refused);
    EXPECT_TRUE(isRoomMissing(refused.error()));
    EXPECT_TRUE(files().isEmpty());
    ++room;
    EXPECT_TRUE(narrow.make(BackupReason::Automatic));
}

TEST_F(BackupFolderTest, ARestoredStoreIsSeenByTheOpenContextAndNoOldObjectIsSavedAgain)
{
    save({"Alien", "Brazil"});
    ASSERT_TRUE(moveLogIntoFile(TestStore::path()));
    const BackupName before = backups.make(BackupReason::Automatic).value();
    const auto alien = store.all().front();
    alien->setText(Films::Title, "Aliens");
    save({"Casablanca"});
    const BackupName undo = backups.make(BackupReason::BeforeRestore).value();

    ASSERT_TRUE(backups.restore(before, testModel()));
    store.context->reset();
    alien->setText(Films::Title, "Alien 3");
    EXPECT_FALSE(store.context->hasChanges());
    EXPECT_EQ(titlesOf(store.all()), "Alien Brazil");
    // The log belongs to the file, although that has another mark than before.
    save({"Dune"});
    EXPECT_TRUE(logBelongsToFile(TestStore::path()));
    ASSERT_TRUE(moveLogIntoFile(TestStore::path()));
    EXPECT_TRUE(logBelongsToFile(TestStore::path()));

    ASSERT_TRUE(backups.restore(undo, testModel()));
    store.context->reset();
    EXPECT_EQ(titlesOf(store.all()), "Aliens Brazil Casablanca");
    EXPECT_EQ(files().size(), 2);
}

TEST_F(BackupFolderTest, OlderBackupsAreMigratedAndNewerAndForeignOnesRefused)
{
    save({"Alien"});
    const BackupName backup = backups.make(BackupReason::Automatic).value();
    const auto later = laterModel("UPDATE Films SET title = title || ' (1979)'");
    EXPECT_EQ(inspectBackup(backups.pathOf(backup), later, "Films").state, BackupState::Sound);
    ASSERT_TRUE(backups.restore(backup, later));
    EXPECT_EQ(TestStore::saved("SELECT count(*) FROM Films WHERE title = 'Alien (1979)'"), 1);
    EXPECT_EQ(TestStore::saved("PRAGMA user_version"), 2);

    const BackupName newer = backups.make(BackupReason::Automatic).value();
    EXPECT_EQ(factsOf(newer).state, BackupState::Newer);
    NSManagedObjectModel stranger = testModel();
    ++stranger.applicationId;
    EXPECT_EQ(inspectBackup(backups.pathOf(backup), stranger, "Films").state, BackupState::Foreign);
    write(backups.pathOf(backup), QByteArray(5000, 'x'), 0);
    EXPECT_EQ(factsOf(backup).state, BackupState::Damaged);
    for (const BackupName& refused : {newer, backup, BackupName{QDateTime::currentDateTimeUtc()}})
        EXPECT_FALSE(backups.restore(refused, testModel()));
    EXPECT_EQ(TestStore::saved("PRAGMA user_version"), 2);
    EXPECT_EQ(files().size(), 2);
}

TEST_F(BackupFolderTest, KilledAtAnyMomentARestoreLeavesTheOldOrTheNewCatalogue)
{
    QStringList many;
    for (int film = 0; film < 300; ++film)
        many << QString::number(film);
    save(many);
    const BackupName full = backups.make(BackupReason::Automatic).value();
    for (const auto& film : store.all())
        store.context->deleteObject(film);
    save({"Alien"});
    store.context.reset();
    int restored = 0;
    // The first one is not killed: it shows how long a restore takes here.
    qint64 whole = 0;
    for (qint64 round = 0; round < 40; ++round) {
        QElapsedTimer clock;
        clock.start();
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(backups.restore(full, testModel()) ? 0 : 1);
        if (round > 0) {
            ::usleep(static_cast<useconds_t>(whole * (round - 1) / 30));
            ::kill(child, SIGKILL);
        }
        ::waitpid(child, nullptr, 0);
        whole = round == 0 ? clock.nsecsElapsed() / 1000 : whole;
        store.reopen();
        const FilmList films = store.all();
        ASSERT_TRUE(films.size() == 1 || films.size() == 300) << films.size();
        ASSERT_TRUE(store.connection->check());
        restored += films.size() == 300 ? 1 : 0;
        for (const auto& film : films)
            store.context->deleteObject(film);
        save({"Alien"});
        store.context.reset();
    }
    EXPECT_GT(restored, 0);
    EXPECT_LT(restored, 40);
    EXPECT_TRUE(backups.make(BackupReason::Automatic));
    EXPECT_EQ(files().size(), 2);
}

} // namespace
