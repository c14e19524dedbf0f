#include "platform/services/FileBytes.h"

#include <QFile>
#include <QSaveFile>

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
        if (target.write(piece) != piece.size())
            return errorOf(target);
    }
    return success();
}

Status copyFile(const QString& path, const QString& copy)
{
    QSaveFile target(copy);
    if (!target.open(QIODevice::WriteOnly))
        return errorOf(target);
    const Status copied = copyBytes(path, target);
    if (copied && !target.commit())
        return errorOf(target);
    return copied;
}
