#pragma once

#include "platform/foundation/Result.h"
#include "platform/store/BackupName.h"

#include <functional>
#include <memory>
#include <vector>

struct NSManagedObjectModel;
class QLockFile;
class QTimeZone;

// The copies of one store, in the folder `backups` beside it. Every function works with files alone and may
// be called on any thread; copying, restoring and thinning wait for one another, also in other processes.
class BackupFolder
{
public:
    // How many bytes are free where `path` is.
    using RoomProbe = std::function<qint64(const QString& path)>;

    explicit BackupFolder(const QString& storePath, RoomProbe room = freeBytes);

    [[nodiscard]] QString pathOf(const BackupName& backup) const;
    // Newest first.
    [[nodiscard]] std::vector<BackupName> list() const;

    // Copies what is saved in the store, checks the copy and brings it to the disk before it gets its name.
    // The pages of the copy are those of the store, so a store that is damaged makes no copy: the error is
    // `isStoreDamaged` then. Fails with `isRoomMissing` when less than twice the store's size is free.
    [[nodiscard]] Result<BackupName> make(BackupReason reason) const;

    // Puts the content of `backup` in the place of the store's, in one transaction. The store may be open:
    // its connections see the new content with their next statement. An older backup is brought to the
    // version of `model` before; the backup itself stays as it is. Until it succeeds the store is unchanged.
    [[nodiscard]] Status restore(const BackupName& backup, const NSManagedObjectModel& model) const;

    // Sets the pages of a damaged store aside in a file of its own, which is no backup and never removed.
    [[nodiscard]] Status setAside() const;

    // Removes the backups that `expiredBackups` names.
    void thin(const QDateTime& now, const QTimeZone& zone) const;

    // Returns once nothing is being copied or restored, at the latest after half a minute.
    void waitUntilIdle() const;

    [[nodiscard]] static qint64 freeBytes(const QString& path);

private:
    using Lock = std::shared_ptr<QLockFile>;

    // Makes the folder, waits for those who work in it, and removes what killed ones left there.
    [[nodiscard]] Result<Lock> enter() const;
    void removeLeftovers() const;
    [[nodiscard]] Status requireRoom() const;
    [[nodiscard]] BackupName freshName(BackupReason reason) const;
    [[nodiscard]] Status copyStore(const QString& copy) const;

    QString store;
    QString folder;
    RoomProbe room;
};

// Whether a copy was not made because the store is damaged.
[[nodiscard]] bool isStoreDamaged(const NSError& error);
// Whether a copy was not attempted because there is no room for it.
[[nodiscard]] bool isRoomMissing(const NSError& error);
