#include "exchange/TemporaryFile.h"

#include "platform/foundation/FileWriting.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QString temporaryFilePath(const QString& name)
{
    return QDir::tempPath() + QLatin1Char('/') + name;
}

Status writeTemporaryFile(const QString& path, const QString& text)
{
    if (QFileInfo(path).isSymLink() && !QFile::remove(path))
        return NSError{QStringLiteral("Another's link is in the way"), {{QStringLiteral("path"), path}}};
    return writeAtomically(text.toUtf8(), path, FileReaders::OwnerOnly);
}

std::optional<QByteArray> bytesOfTemporaryFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}
