#include "platform/foundation/TemporaryFolder.h"

#include <QDir>
#include <QSet>
#include <QStandardPaths>
#include <QUuid>

namespace {

constexpr auto onlyForOwner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

QString folderOfAll()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/temporary");
}

QString lockOf(const QString& folder)
{
    return folder + QStringLiteral(".lock");
}

// Only a lock whose owner no longer runs can be taken from it.
void removeIfLeft(const QString& folder)
{
    QLockFile lock(lockOf(folder));
    lock.setStaleLockTime(0);
    if (lock.tryLock(0))
        QDir(folder).removeRecursively();
}

void removeLeftFolders()
{
    const QDir all(folderOfAll());
    QSet<QString> names;
    for (const auto& entry : all.entryInfoList(QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot))
        names.insert(entry.baseName());
    for (const auto& name : names)
        removeIfLeft(all.filePath(name));
}

} // namespace

TemporaryFolder::TemporaryFolder()
    : place(folderOfAll() + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::Id128))
    , lock(lockOf(place))
{
    lock.setStaleLockTime(0);
    removeLeftFolders();
}

TemporaryFolder::~TemporaryFolder()
{
    if (lock.isLocked())
        QDir(place).removeRecursively();
}

QString TemporaryFolder::path()
{
    if (QFileInfo(place).isDir())
        return place;
    const QString all = folderOfAll();
    if (QDir().mkpath(all) && QFile::setPermissions(all, onlyForOwner) &&
        (lock.isLocked() || lock.tryLock(0)))
        QDir().mkdir(place, onlyForOwner);
    return place;
}
