#include "platform/store/BackupFolder.h"

#include "platform/store/BackupThinning.h"

#include <QDir>
#include <QLockFile>
#include <QStorageInfo>
#include <algorithm>

namespace {

constexpr std::chrono::milliseconds longestWait(30000);
constexpr auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

// SQLite's own side files of an unfinished copy go with it.
const QStringList unfinishedEndings{QStringLiteral(".part"), QStringLiteral(".part-journal"),
                                    QStringLiteral(".part-wal"), QStringLiteral(".part-shm")};

bool isUnfinished(const QString& fileName)
{
    return std::any_of(unfinishedEndings.begin(), unfinishedEndings.end(), [&](const QString& ending) {
        return fileName.endsWith(ending) && BackupName::parse(fileName.chopped(ending.size()));
    });
}

} // namespace

BackupFolder::BackupFolder(const QString& storePath, RoomProbe room)
    : store(storePath)
    , folder(QFileInfo(storePath).path() + QStringLiteral("/backups"))
    , room(std::move(room))
{
}

QString BackupFolder::pathOf(const BackupName& backup) const
{
    return folder + QLatin1Char('/') + backup.fileName();
}

std::vector<BackupName> BackupFolder::list() const
{
    std::vector<BackupName> backups;
    for (const QString& fileName : QDir(folder).entryList(QDir::Files)) {
        if (const auto backup = BackupName::parse(fileName))
            backups.push_back(*backup);
    }
    std::sort(backups.begin(), backups.end(),
              [](const BackupName& one, const BackupName& other) { return one.moment > other.moment; });
    return backups;
}

void BackupFolder::thin(const QDateTime& now, const QTimeZone& zone) const
{
    const auto entered = enter();
    if (!entered)
        return;
    for (const BackupName& expired : expiredBackups(list(), now, zone))
        QFile::remove(pathOf(expired));
}

void BackupFolder::waitUntilIdle() const
{
    if (QFileInfo::exists(folder))
        // Ignored: whoever works there for so long is not waited for.
        (void)enter().ok();
}

qint64 BackupFolder::freeBytes(const QString& path)
{
    return QStorageInfo(path).bytesAvailable();
}

Result<BackupFolder::Lock> BackupFolder::enter() const
{
    const QFileInfo place(folder);
    if (!place.isDir() && !QDir().mkdir(folder, ownerOnly))
        return NSError{QStringLiteral("The folder for backups could not be made."),
                       {{QStringLiteral("path"), folder}}};
    auto lock = std::make_shared<QLockFile>(folder + QStringLiteral("/.lock"));
    // Only a process that no longer runs loses its lock.
    lock->setStaleLockTime(0);
    if (!lock->tryLock(static_cast<int>(longestWait.count())))
        return NSError{QStringLiteral("The folder for backups is in use."),
                       {{QStringLiteral("path"), folder}}};
    removeLeftovers();
    return lock;
}

void BackupFolder::removeLeftovers() const
{
    for (const QString& fileName : QDir(folder).entryList(QDir::Files | QDir::Hidden)) {
        if (isUnfinished(fileName))
            QFile::remove(folder + QLatin1Char('/') + fileName);
    }
}
