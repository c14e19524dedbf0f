#include "platform/foundation/FileWriting.h"

#include <QSaveFile>

namespace {

bool isFor(FileReaders readers, QSaveFile& file)
{
    return readers == FileReaders::AsUsual ||
           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

} // namespace

Status writeAtomically(const QByteArray& content, const QString& path, FileReaders readers)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && isFor(readers, file) && file.write(content) == content.size() &&
        file.commit())
        return success();
    return NSError{file.errorString(), {{QStringLiteral("path"), path}}};
}
