#include "platform/services/FileBytes.h"

#include "platform/foundation/FileWriting.h"

#include <QBuffer>
#include <QFile>

namespace {

constexpr qsizetype pieceOfFile = 1 << 20;

} // namespace

Result<std::shared_ptr<QIODevice>> openFile(const QString& path)
{
    auto file = std::make_shared<QFile>(path);
    if (file->open(QIODevice::ReadOnly))
        return std::shared_ptr<QIODevice>(std::move(file));
    return NSError{file->errorString(), {}};
}

std::shared_ptr<QIODevice> openBytes(const QByteArray& bytes)
{
    auto buffer = std::make_shared<QBuffer>();
    buffer->setData(bytes);
    // Ignored: a buffer can always be opened.
    (void)buffer->open(QIODevice::ReadOnly);
    return buffer;
}

Status copyBytes(QIODevice& source, QFileDevice& target)
{
    QByteArray piece(pieceOfFile, Qt::Uninitialized);
    for (;;) {
        const qint64 size = source.read(piece.data(), piece.size());
        if (size < 0)
            return NSError{source.errorString(), {}};
        if (size == 0)
            return success();
        if (const Status written = writeAll(target, QByteArrayView(piece).first(size)); !written)
            return written;
    }
}

Status saveBytes(QIODevice& source, const QString& path)
{
    return replaceAtomically(path, FileReaders::AsUsual,
                             [&](QFileDevice& target) { return copyBytes(source, target); });
}

Status copyFile(const QString& source, const QString& path)
{
    const auto opened = openFile(source);
    return opened ? saveBytes(*opened.value(), path) : Status(opened.error());
}
