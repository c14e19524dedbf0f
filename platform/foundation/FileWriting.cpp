#include "platform/foundation/FileWriting.h"

#include <QSaveFile>

namespace {

bool isFor(FileReaders readers, QSaveFile& file)
{
    return readers == FileReaders::AsUsual ||
           file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

// A disk that fills up takes a part first; only the next attempt says why.
bool writeAll(QSaveFile& file, QByteArrayView content)
{
    while (!content.isEmpty()) {
        const qint64 taken = file.write(content.data(), content.size());
        if (taken <= 0)
            return false;
        content = content.sliced(taken);
    }
    return true;
}

} // namespace

Status writeAtomically(const QByteArray& content, const QString& path, FileReaders readers)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && isFor(readers, file) && writeAll(file, content) && file.commit())
        return success();
    return NSError{file.errorString(), {{QStringLiteral("path"), path}}};
}
