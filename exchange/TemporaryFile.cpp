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

std::optional<QString> rewrittenTemporaryFile(const QString& path, const QString& text)
{
    QFile file(path);
    if (!writeTemporaryFile(path, text) || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return QString::fromUtf8(file.readAll());
}
