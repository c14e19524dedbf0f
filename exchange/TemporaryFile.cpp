#include "exchange/TemporaryFile.h"

#include "platform/foundation/FileWriting.h"
#include "platform/services/Device.h"

#include <QFile>

QString temporaryFilePath(const QString& name)
{
    return Device::current().temporaryDirectory.path() + QLatin1Char('/') + name;
}

Status writeTemporaryFile(const QString& path, const QString& text)
{
    auto written = writeAtomically(text.toUtf8(), path, FileReaders::OwnerOnly);
    if (!written)
        QFile::remove(path);
    return written;
}

std::optional<QByteArray> bytesOfTemporaryFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}
