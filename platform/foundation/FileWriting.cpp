#include "platform/foundation/FileWriting.h"

#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

bool isFor(FileReaders readers, QSaveFile& file)
{
    return readers == FileReaders::AsUsual ||
           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

NSError errorOf(const QFileDevice& file)
{
    return {file.errorString(), {{QStringLiteral("path"), file.fileName()}}};
}

} // namespace

Status writeAtomically(const QByteArray& content, const QString& path, FileReaders readers)
{
    return replaceAtomically(path, readers, [&](QFileDevice& file) { return writeAll(file, content); });
}

// Synced before it is committed, because QSaveFile replaces the old file even if its own sync fails: after
// the loss of power neither would be left. Unbuffered, because QSaveFile does not notice when the buffer that
// commit() writes does not fit on the disk: it then puts the file cut short in the place of the old one.
Status replaceAtomically(const QString& path, FileReaders readers,
                         const std::function<Status(QFileDevice&)>& write)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !isFor(readers, file))
        return errorOf(file);
    if (Status written = write(file); !written)
        return written;
    if (Status synced = syncToDisk(file); !synced)
        return synced;
    return file.commit() ? success() : Status(errorOf(file));
}

Status syncFolderOf(const QString& path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
    const int opened = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool isSynced = opened >= 0 && ::fsync(opened) == 0;
    if (opened >= 0)
        ::close(opened);
    if (isSynced)
        return success();
    return NSError{QStringLiteral("The folder could not be brought to the disk."),
                   {{QStringLiteral("path"), QFileInfo(path).path()}}};
}

// A disk that fills up takes a part first; only the next attempt says why.
Status writeAll(QFileDevice& file, QByteArrayView content)
{
    while (!content.isEmpty()) {
        const qint64 taken = file.write(content.data(), content.size());
        if (taken <= 0)
            return errorOf(file);
        content = content.sliced(taken);
    }
    return success();
}

Status syncToDisk(QFileDevice& file)
{
    if (!file.flush())
        return errorOf(file);
    if (::fdatasync(file.handle()) == 0)
        return success();
    return NSError{qt_error_string(errno), {{QStringLiteral("path"), file.fileName()}}};
}
