#include "platform/services/FileBytes.h"

#include "platform/foundation/FileWriting.h"

#include <QFile>

namespace {

constexpr qsizetype pieceOfFile = 1 << 20;

NSError errorOf(const QFileDevice& file)
{
    return {file.errorString(), {}};
}

} // namespace

Result<QByteArray> readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return errorOf(file);
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return errorOf(file);
    return bytes;
}

Status copyBytes(const QString& path, QFileDevice& target)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return errorOf(file);
    while (!file.atEnd()) {
        const QByteArray piece = file.read(pieceOfFile);
        if (file.error() != QFileDevice::NoError)
            return errorOf(file);
        if (const Status written = writeAll(target, piece); !written)
            return written;
    }
    return success();
}

Status copyFile(const QString& path, const QString& copy)
{
    return replaceAtomically(copy, FileReaders::AsUsual,
                             [&](QFileDevice& target) { return copyBytes(path, target); });
}
