#include "tests/store/TestStore.h"

#include <QFile>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// Makes a database at `path` by `statements`; when `keepLog`, its last changes stay in the log beside it.
void makeDatabase(const QString& path, const QByteArrayList& statements, bool keepLog = false)
{
    const auto database = Database::open(path, Database::Access::ReadWrite);
    database.value()->setCheckpointsOnClose(!keepLog);
    for (const auto& statement : statements)
        ASSERT_TRUE(database.value()->run(statement)) << statement.constData();
}

void makeStore(const QString& path, const QByteArrayList& statements, bool keepLog)
{
    ASSERT_TRUE(openStoreFile(path, testModel()));
    makeDatabase(path, statements, keepLog);
}

QMap<QString, QByteArray> everythingIn(const QString& directory)
{
    QMap<QString, QByteArray> found;
    for (const auto& entry :
         QDir(directory).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden))
        found.insert(entry, bytesOf(directory + QLatin1Char('/') + entry));
    return found;
}

struct RefusedFile
{
    const char* what;
    std::function<void(const QString&)> make;
    const char* message;
};

TEST(StoreFile, whatIsNoStoreOfThisModelIsRefusedUntouched)
{
    const RefusedFile cases[] = {
        {"directory", [](const QString& path) { QDir().mkpath(path); }, "not a file"},
        {"text", [](const QString& path) { writeFile(path, "Lorem ipsum ^ dolor\n"); }, "not a database"},
        {"long text", [](const QString& path) { writeFile(path, QByteArray(100'000, 'x')); },
         "not a database"},
        {"foreign mark", [](const QString& path) { makeDatabase(path, {"PRAGMA application_id = 5"}); },
         "not a store of this program"},
        {"no mark", [](const QString& path) { makeDatabase(path, {"CREATE TABLE Films (title)"}); },
         "not a store of this program"},
        {"no mark, with a log",
         [](const QString& path) {
             makeDatabase(path, {"PRAGMA journal_mode = WAL", "CREATE TABLE Films (title)"}, true);
         },
         "not a store of this program"},
        {"no mark, in a log over nothing but the first page",
         [](const QString& path) {
             makeDatabase(path, {"PRAGMA journal_mode = WAL"});
             makeDatabase(path, {"CREATE TABLE Films (title)", "PRAGMA application_id = 5"}, true);
         },
         "not a store of this program"},
        {"newer", [](const QString& path) { makeStore(path, {"PRAGMA user_version = 2"}, false); },
         "made by a newer version"},
        {"newer, in the log", [](const QString& path) { makeStore(path, {"PRAGMA user_version = 2"}, true); },
         "made by a newer version"},
    };
    for (const auto& [what, make, message] : cases) {
        const auto directory = TestStore::directory() + QString::fromUtf8(what);
        QDir().mkpath(directory);
        make(directory + QStringLiteral("/Films.sqlite"));
        const auto before = everythingIn(directory);
        NSPersistentContainer container(QStringLiteral("Films"), testModel());
        const auto loaded = container.loadPersistentStores(directory);
        ASSERT_FALSE(loaded) << what;
        EXPECT_TRUE(loaded.error().localizedDescription.contains(QString::fromUtf8(message)))
            << what << ": " << loaded.error().localizedDescription.toStdString();
        EXPECT_TRUE(loaded.error().userInfo.value(QStringLiteral("path")).toString().startsWith(directory));
        EXPECT_EQ(everythingIn(directory), before) << what;
    }
}

TEST(StoreFile, isMadeForItsOwnerAlone)
{
    const auto mode = [](const QString& path) {
        return QFile::permissions(path) &
               (QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther);
    };
    ::umask(0);
    NSPersistentContainer container(QStringLiteral("Films"), testModel());
    ASSERT_TRUE(container.loadPersistentStores());
    container.viewContext().insert<Films>();
    ASSERT_TRUE(container.viewContext().save());
    EXPECT_EQ(container.defaultDirectory(), TestStore::directory());
    EXPECT_EQ(mode(TestStore::directory()), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    for (const auto* part : {"", "-wal", "-shm"})
        EXPECT_EQ(mode(TestStore::path() + QString::fromUtf8(part)), QFile::ReadOwner | QFile::WriteOwner)
            << part;
}

TEST(StoreFile, anEmptyFileOrDatabaseBecomesAStore)
{
    for (const auto isDatabase : {false, true}) {
        const auto directory = TestStore::directory() + (isDatabase ? "1" : "0");
        const auto path = directory + QStringLiteral("/Films.sqlite");
        QDir().mkpath(directory);
        if (isDatabase)
            makeDatabase(path, {"PRAGMA journal_mode = WAL"});
        else
            writeFile(path, {});
        NSPersistentContainer container(QStringLiteral("Films"), testModel());
        ASSERT_TRUE(container.loadPersistentStores(directory));
        container.viewContext().insert<Films>();
        EXPECT_TRUE(container.viewContext().save());
    }
}

// Whether this process still holds a lock on the file, as another process sees it.
bool isLockedByUs(const QString& path)
{
    const auto asker = ::fork();
    if (asker == 0) {
        struct flock lock
        {
        };
        lock.l_type = F_WRLCK;
        const auto file = ::open(path.toUtf8().constData(), O_RDWR);
        ::_exit(::fcntl(file, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK ? 1 : 0);
    }
    int status = 0;
    ::waitpid(asker, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 1;
}

// A process that closes a file gives up all its locks on it: were the second container careless, another
// process would take the store for unused and remove its log.
TEST(StoreFile, aSecondContainerLeavesTheFirstItsLocks)
{
    TestStore store;
    const auto film = store.add(QStringLiteral("unsaved"));
    ASSERT_EQ(store.all().size(), 1U);
    ASSERT_TRUE(isLockedByUs(TestStore::path()));
    {
        NSPersistentContainer second(QStringLiteral("Films"), testModel());
        ASSERT_TRUE(second.loadPersistentStores());
        EXPECT_EQ(second.viewContext().count(Films::fetchRequest()).value(), 0);
    }
    EXPECT_TRUE(isLockedByUs(TestStore::path()));
    ASSERT_TRUE(store.context->save());
    NSPersistentContainer third(QStringLiteral("Films"), testModel());
    ASSERT_TRUE(third.loadPersistentStores());
    EXPECT_EQ(third.viewContext().count(Films::fetchRequest()).value(), 1);
}

} // namespace
