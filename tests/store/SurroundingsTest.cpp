// What others do to the store's file while it is open, or before it is opened again.
#include "platform/store/StoreGeneration.h"
#include "tests/store/TestStore.h"
#include "tests/support/ManualQueue.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

void putInPlace(const QString& copy, const QString& path)
{
    QFile::remove(path);
    ASSERT_TRUE(QFile::copy(copy, path)) << path.toStdString();
}

// Keeps the file itself, as `cp` does.
void copyOver(const QString& copy, const QString& path)
{
    QFile from(copy);
    QFile to(path);
    ASSERT_TRUE(from.open(QIODevice::ReadOnly));
    ASSERT_TRUE(to.open(QIODevice::WriteOnly | QIODevice::Truncate));
    to.write(from.readAll());
}

TEST(ForeignLock, ReadsGoOnAndNothingIsLost)
{
    TestStore store;
    store.add(QStringLiteral("saved"));
    ASSERT_TRUE(store.context->save());
    const auto other = Database::open(TestStore::path(), Database::Access::ReadWrite);
    ASSERT_TRUE(other.value()->run("BEGIN IMMEDIATE"));

    store.add(QStringLiteral("waiting"));
    EXPECT_EQ(titlesOf(store.all()), QStringLiteral("saved"));
    const auto refused = store.context->save();
    ASSERT_FALSE(refused);
    EXPECT_TRUE(Database::isBusy(refused.error()));
    EXPECT_EQ(store.context->changeCount(), 1U);

    ASSERT_TRUE(other.value()->run("COMMIT"));
    EXPECT_TRUE(store.context->trySave());
    EXPECT_EQ(TestStore::saved("SELECT COUNT(*) FROM Films"), 2);
}

TEST(ForeignLock, ARunOfSavesMakesFewAttempts)
{
    TestStore store;
    const auto other = Database::open(TestStore::path(), Database::Access::ReadWrite);
    ASSERT_TRUE(other.value()->run("BEGIN IMMEDIATE"));
    int attempts = 0;
    store.context->addSaveHandler([&](const Status&) { ++attempts; });
    {
        const NSManagedObjectContext::BulkSaves run(*store.context);
        for (int line = 0; line < 1000; ++line) {
            store.add(QString::number(line));
            ASSERT_FALSE(store.context->save());
            ASSERT_TRUE(store.all().empty());
        }
        EXPECT_LE(attempts, 11);
        ASSERT_TRUE(other.value()->run("COMMIT"));
    }
    EXPECT_FALSE(store.context->hasChanges());
    EXPECT_EQ(TestStore::saved("SELECT COUNT(*) FROM Films"), 1000);
}

// A container whose log was moved into its file once, of which a copy was made, and that saved more since.
class SurroundedStore : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(container->loadPersistentStores());
        save(QStringLiteral("old"));
        queue.advance(2s);
        ASSERT_TRUE(QFile::copy(path, copy));
    }

    void save(const QString& title)
    {
        auto film = container->viewContext().insert<Films>();
        film->setText(Films::Title, title);
        ASSERT_TRUE(container->viewContext().save());
    }

    // Everything beside the store, as a killed program leaves it.
    void kill()
    {
        for (const auto* suffix : {"", "-wal", "-generation"})
            ASSERT_TRUE(QFile::copy(path + QLatin1String(suffix), path + QLatin1String(suffix) + ".killed"));
        container.reset();
        for (const auto* suffix : {"", "-wal", "-generation"})
            putInPlace(path + QLatin1String(suffix) + ".killed", path + QLatin1String(suffix));
    }

    static QString titlesIn(const QString& directory)
    {
        NSPersistentContainer opened(QStringLiteral("Films"), testModel());
        EXPECT_TRUE(opened.loadPersistentStores(directory));
        return titlesOf(opened.viewContext().fetch<Films>(Films::fetchRequest()).value());
    }

    static QStringList logsPutAside()
    {
        return QDir(TestStore::directory()).entryList({QStringLiteral("*-wal-*")}, QDir::Files);
    }

    ManualQueue queue;
    const QString path = TestStore::path();
    const QString copy = TestStore::directory() + QStringLiteral("/copy");
    std::unique_ptr<NSPersistentContainer> container =
        std::make_unique<NSPersistentContainer>(QStringLiteral("Films"), testModel());
};

TEST_F(SurroundedStore, AtRestTheFileAloneIsTheStore)
{
    EXPECT_FALSE(hasLog(path));
    save(QStringLiteral("new"));
    queue.advance(1999ms);
    EXPECT_TRUE(hasLog(path));
    container->viewContext().insert<Films>();
    (void)container->viewContext().count(Films::fetchRequest()); // Ignored: opens the transaction.
    queue.advance(2s);
    EXPECT_TRUE(hasLog(path)) << "an open transaction keeps the log";
    ASSERT_TRUE(container->viewContext().save());
    queue.advance(4s);
    EXPECT_FALSE(hasLog(path));
    const QString elsewhere = TestStore::directory() + QStringLiteral("/elsewhere");
    QDir().mkpath(elsewhere);
    ASSERT_TRUE(QFile::copy(path, elsewhere + QStringLiteral("/Films.sqlite")));
    EXPECT_EQ(titlesIn(elsewhere), QStringLiteral("old new (none)"));
}

TEST_F(SurroundedStore, AKilledProgramsLogIsReadAndMoved)
{
    save(QStringLiteral("new"));
    kill();
    EXPECT_EQ(titlesIn(TestStore::directory()), QStringLiteral("old new"));
    EXPECT_FALSE(hasLog(path));
    EXPECT_EQ(logsPutAside(), QStringList());
}

TEST_F(SurroundedStore, ACopyIsNotMixedWithTheLogOfWhatItReplaces)
{
    save(QStringLiteral("second"));
    queue.advance(2s);
    save(QStringLiteral("third"));
    kill();
    putInPlace(copy, path);
    EXPECT_EQ(titlesIn(TestStore::directory()), QStringLiteral("old"));
    EXPECT_EQ(logsPutAside().size(), 1);
}

TEST_F(SurroundedStore, AHalfMovedLogIsNeverPutAside)
{
    save(QStringLiteral("new"));
    kill();
    // As it is while the log is being moved: the file may already have its next mark.
    QFile::remove(path + QStringLiteral("-generation"));
    EXPECT_EQ(titlesIn(TestStore::directory()), QStringLiteral("old new"));
    EXPECT_EQ(logsPutAside(), QStringList());
}

TEST_F(SurroundedStore, NothingIsSavedIntoAnotherFile)
{
    save(QStringLiteral("second"));
    queue.advance(2s);
    const std::function<void()> harms[] = {
        [&] { ASSERT_TRUE(QFile::rename(path, path + ".away")); },
        [&] {
            ASSERT_TRUE(QFile::rename(path, path + ".away"));
            ASSERT_TRUE(QFile::copy(copy, path));
        },
        [&] {
            ASSERT_TRUE(QFile::copy(path, path + ".away"));
            copyOver(copy, path);
        },
    };
    const std::function<void()> remedies[] = {
        [&] { ASSERT_TRUE(QFile::rename(path + ".away", path)); },
        [&] {
            QFile::remove(path);
            ASSERT_TRUE(QFile::rename(path + ".away", path));
        },
        [&] {
            copyOver(path + ".away", path);
            QFile::remove(path + ".away");
        },
    };
    for (std::size_t way = 0; way < std::size(harms); ++way) {
        harms[way]();
        container->viewContext().insert<Films>();
        const Status refused = container->viewContext().save();
        ASSERT_FALSE(refused) << way;
        EXPECT_TRUE(isStoreReplaced(refused.error())) << way;
        remedies[way]();
        EXPECT_TRUE(container->viewContext().save()) << way;
        EXPECT_FALSE(container->viewContext().hasChanges());
        queue.advance(2s);
    }
}

TEST_F(SurroundedStore, IsTakenBackFromOtherReaders)
{
    container.reset();
    const auto everybody = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
    ASSERT_TRUE(QFile::setPermissions(path, everybody));
    EXPECT_EQ(titlesIn(TestStore::directory()), QStringLiteral("old"));
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

} // namespace
