#include "platform/store/StoreGeneration.h"

#include "platform/foundation/Console.h"
#include "platform/foundation/FileWriting.h"
#include "platform/store/Database.h"
#include "platform/store/StoreFiles.h"

#include <QDir>
#include <QUuid>

namespace {

QString markFile(const QString& path)
{
    return path + QStringLiteral("-generation");
}

QString logFile(const QString& path)
{
    return path + QStringLiteral("-wal");
}

// Absent: there is none, or it cannot be read.
std::optional<QByteArray> markBeside(const QString& path)
{
    constexpr qint64 longest = 100;
    QFile file(markFile(path));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.read(longest);
}

// The mark in the file itself, without its log; empty: it has none. Absent: the file alone can't be read.
std::optional<QByteArray> markWithin(const QString& path)
{
    const auto opened = Database::open(path, Database::Access::Untouched);
    if (!opened)
        return std::nullopt;
    auto& file = *opened.value();
    const auto tables = file.number("SELECT COUNT(*) FROM sqlite_schema WHERE name = 'StoreGeneration'");
    if (!tables)
        return std::nullopt;
    if (tables.value() == 0)
        return QByteArray();
    auto marks = file.query("SELECT mark FROM StoreGeneration");
    const auto stepped = marks.step();
    if (!stepped)
        return std::nullopt;
    return stepped.value() ? marks.text(0).toByteArray() : QByteArray();
}

Status mark(Database& store, const QByteArray& mark)
{
    const auto made = store.run(
        "CREATE TABLE IF NOT EXISTS StoreGeneration (id INTEGER PRIMARY KEY CHECK (id = 1), mark TEXT)");
    if (!made)
        return made;
    auto marking = store.query("REPLACE INTO StoreGeneration VALUES (1, ?)");
    marking.bind(QString::fromLatin1(mark));
    return marking.run();
}

// Another connection may have marked the file since: then its mark is the one that counts.
Status requireMark(Database& store, const QByteArray& mark)
{
    auto marks = store.query("SELECT mark FROM StoreGeneration");
    const auto stepped = marks.step();
    if (!stepped)
        return stepped.error();
    if (stepped.value() && marks.text(0) == mark)
        return success();
    return NSError{QStringLiteral("Another connection moved the log meanwhile."), {}};
}

// The first column of the answer is 1 when the checkpoint was kept from its work.
Status emptyLog(Database& store)
{
    const auto kept = store.number("PRAGMA wal_checkpoint(TRUNCATE)");
    if (!kept)
        return kept.error();
    if (kept.value() != 0)
        return NSError{QStringLiteral("The store is in use."), {}};
    return success();
}

} // namespace

// Must have reached the disk before the file gets its next mark: a half-moved log with the old mark beside it
// would look like another store's.
Status removeMarkBeside(const QString& path)
{
    if (!QFile::exists(markFile(path)))
        return success();
    if (!QFile::remove(markFile(path)))
        return NSError{QStringLiteral("The mark beside the store could not be removed."), {}};
    return syncFolderOf(path);
}

Status removeMarkWithin(Database& copy)
{
    return copy.run("DROP TABLE IF EXISTS StoreGeneration");
}

bool hasLog(const QString& path)
{
    return StoreFiles::current().size(logFile(path)) > 0;
}

Status moveLogIntoFile(const QString& path)
{
    const auto opened = Database::open(path, Database::Access::ReadWrite);
    if (!opened)
        return opened.error();
    auto& store = *opened.value();
    store.setPatience(std::chrono::milliseconds(0));
    const auto fresh = QUuid::createUuid().toByteArray(QUuid::Id128);
    const std::function<Status()> steps[] = {
        [&] { return store.run("PRAGMA synchronous = FULL"); },
        [&] { return store.run("BEGIN IMMEDIATE"); },
        [&] { return removeMarkBeside(path); },
        [&] { return mark(store, fresh); },
        [&] { return store.run("COMMIT"); },
        [&] { return emptyLog(store); },
        // Both files change their marks only under the lock, so that they never end with different ones.
        [&] { return store.run("BEGIN IMMEDIATE"); },
        [&] { return requireMark(store, fresh); },
        [&] { return writeAtomically(fresh, markFile(path), FileReaders::OwnerOnly); },
        [&] { return store.run("ROLLBACK"); },
    };
    for (const auto& step : steps) {
        if (const auto done = step(); !done)
            return done;
    }
    return success();
}

bool logBelongsToFile(const QString& path)
{
    const auto beside = markBeside(path);
    if (!beside)
        return true;
    const auto within = markWithin(path);
    return !within || *within == *beside;
}

Status putLogAside(const QString& path)
{
    const auto moment = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd'T'hhmmsszzz"));
    const QString aside = logFile(path) + QLatin1Char('-') + moment;
    if (!QFile::rename(logFile(path), aside))
        return NSError{QStringLiteral("The log of another store could not be put aside."), {}};
    QFile::remove(path + QStringLiteral("-shm"));
    QFile::remove(markFile(path));
    console(QStringLiteral("The store was replaced; the log of the one before was put aside: ") + aside);
    return success();
}
