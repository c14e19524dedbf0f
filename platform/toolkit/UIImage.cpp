#include "platform/toolkit/UIImage.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>

namespace {

constexpr int decodingLimitMiB = 128;
constexpr int qualityScale = 100;

QImage onWhite(const QImage& image)
{
    if (!image.hasAlphaChannel())
        return image;
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, image);
    return opaque;
}

} // namespace

QImage imageWithData(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    QImageReader::setAllocationLimit(decodingLimitMiB);
    return reader.read();
}

QByteArray UIImageJPEGRepresentation(const QImage& image, double quality)
{
    QBuffer buffer;
    if (!onWhite(image).save(&buffer, "JPEG", qRound(quality * qualityScale)))
        return {};
    return buffer.data();
}

QImage imageDrawnInto(const QSize& size, const QImage& image)
{
    QImage bitmap = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    bitmap.setDevicePixelRatio(1.0);
    return bitmap;
}
