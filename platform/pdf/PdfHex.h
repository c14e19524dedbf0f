#pragma once

#include <QByteArray>
#include <QStringEncoder>

// `text` as PDF writes it: the hexadecimal digits of its UTF-16 code units.
[[nodiscard]] inline QByteArray pdfHex(const QString& text)
{
    QStringEncoder encoder(QStringConverter::Utf16BE);
    const QByteArray bytes = encoder.encode(text);
    return bytes.toHex().toUpper();
}
