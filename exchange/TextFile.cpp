#include "exchange/TextFile.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace {

constexpr qint64 largestTextFile = 512LL << 20;

NSError unreadable(const QString& path, const QString& reason)
{
    return {QStringLiteral("The file \"%1\" could not be read: %2").arg(path, reason), {}};
}

} // namespace

QString decodedText(const QByteArray& bytes)
{
    const auto marked = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8), QStringConverter::Flag::Stateless);
    QString text = decoder.decode(bytes);
    return marked || !decoder.hasError() ? text : QString::fromLatin1(bytes);
}

Result<QString> textOfFile(const QString& path)
{
    // Opening a pipe would wait for its other end.
    if (const QFileInfo info(path); path.isEmpty() || (info.exists() && !info.isFile()))
        return unreadable(path, QStringLiteral("It is not a plain file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return unreadable(path, file.errorString());
    if (file.size() > largestTextFile)
        return unreadable(path, QStringLiteral("It is too large"));
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return unreadable(path, file.errorString());
    return decodedText(bytes);
}
