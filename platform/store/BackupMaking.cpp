// How a copy of the store comes into its folder.
#include "platform/foundation/FileWriting.h"
#include "platform/store/BackupFolder.h"
#include "platform/store/Database.h"
#include "platform/store/StoreGeneration.h"

#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>
#include <unistd.h>

namespace {

constexpr auto forOwnerAlone = QFile::ReadOwner | QFile::WriteOwner;
const auto damagedKey = QStringLiteral("StoreDamaged");
const auto roomKey = QStringLiteral("RoomMissing");

NSError fileError(const QString& sentence, const QString& path)
{
    return {sentence, {{QStringLiteral("path"), path}}};
}

Status makeEmptyFile(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, forOwnerAlone))
        return success();
    return fileError(file.errorString(), path);
}

Status syncFile(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadWrite) && ::fsync(file.handle()) == 0)
        return success();
    return fileError(QStringLiteral("The backup could not be brought to the disk."), path);
}

// The copy becomes a single file without a log: whoever finds it needs to know nothing about side files.
Status checkAndFinish(const QString& copy)
{
    const auto opened = Database::open(copy, Database::Access::Alone);
    if (!opened)
        return opened.error();
    if (auto checked = opened.value()->check(); !checked) {
        NSError error = checked.error();
        error.userInfo.insert(damagedKey, true);
        return error;
    }
    const auto removed = removeMarkWithin(*opened.value());
    return removed ? opened.value()->run("PRAGMA journal_mode = DELETE") : removed;
}

// Replaces nothing.
Status putInPlace(const QString& fresh, const QString& path)
{
    if (const auto synced = syncFile(fresh); !synced)
        return synced;
    if (!QFile::rename(fresh, path))
        return fileError(QStringLiteral("The backup could not get its name."), path);
    return syncFolderOf(path);
}

} // namespace

Result<BackupName> BackupFolder::make(BackupReason reason) const
{
    const auto entered = enter();
    if (!entered)
        return entered.error();
    if (const auto fits = requireRoom(); !fits)
        return fits.error();
    const BackupName name = freshName(reason);
    const QString copy = pathOf(name) + QStringLiteral(".part");
    Status made = copyStore(copy);
    if (made)
        made = checkAndFinish(copy);
    if (made)
        made = putInPlace(copy, pathOf(name));
    if (made)
        return name;
    removeLeftovers();
    return made.error();
}

Status BackupFolder::setAside() const
{
    const auto entered = enter();
    if (!entered)
        return entered.error();
    const BackupName name = freshName(BackupReason::BeforeRestore);
    const QString copy = pathOf(name) + QStringLiteral(".part");
    const Status copied = copyStore(copy);
    return copied ? putInPlace(copy, folder + QStringLiteral("/damaged-") + name.fileName()) : copied;
}

Status BackupFolder::requireRoom() const
{
    const qint64 size = QFileInfo(store).size() + QFileInfo(store + QStringLiteral("-wal")).size();
    if (room(folder) >= 2 * size)
        return success();
    return NSError{QStringLiteral("There is no room for a backup."), {{roomKey, true}}};
}

// The clock may stand still, or have been set back to a moment that has a backup.
BackupName BackupFolder::freshName(BackupReason reason) const
{
    BackupName name{QDateTime::currentDateTimeUtc(), reason};
    while (QFileInfo::exists(pathOf(name)))
        name.moment = name.moment.addMSecs(1);
    return name;
}

// Page by page in one read transaction, not by VACUUM INTO: so a check of the copy is a check of the store,
// and copying reads and writes in order.
Status BackupFolder::copyStore(const QString& copy) const
{
    if (const auto made = makeEmptyFile(copy); !made)
        return made;
    const auto source = Database::open(store, Database::Access::Existing);
    if (!source)
        return source.error();
    const auto target = Database::open(copy, Database::Access::Existing);
    if (!target)
        return target.error();
    // The copy is brought to the disk at the end; until then, a loss of power leaves a file that is removed.
    if (const auto set = target.value()->run("PRAGMA synchronous = OFF"); !set)
        return set;
    return target.value()->replaceContent(*source.value());
}

bool isStoreDamaged(const NSError& error)
{
    constexpr int primaryCode = 0xff;
    const int code = error.userInfo.value(QStringLiteral("SQLiteCode")).toInt() & primaryCode;
    return error.userInfo.contains(damagedKey) || code == SQLITE_CORRUPT || code == SQLITE_NOTADB;
}

bool isRoomMissing(const NSError& error)
{
    return error.userInfo.contains(roomKey);
}
