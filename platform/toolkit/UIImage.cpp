#include "platform/toolkit/UIImage.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>

namespace {

constexpr int decodingLimitMiB = 128;
constexpr int bytesPerMiB = 1024 * 1024;
constexpr int bytesPerPixel = 4;
// A photo of a telephone may have 200 million.
constexpr qint64 mostPixels = 256'000'000;
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

// Half as large until it may be decoded. What JPEG leaves out in this way is never held in memory.
QSize decodedSize(QSize size)
{
    constexpr qint64 limit = qint64(decodingLimitMiB) * bytesPerMiB / bytesPerPixel;
    while (qint64(size.width()) * size.height() > limit)
        size /= 2;
    return size;
}

struct DataReader
{
    explicit DataReader(const QByteArray& bytes)
    {
        buffer.setData(bytes);
        reader.setDevice(&buffer);
        reader.setDecideFormatFromContent(true);
        reader.setAutoTransform(true);
    }

    QBuffer buffer;
    QImageReader reader;
};

} // namespace

QSize imageSizeOfData(const QByteArray& bytes)
{
    const DataReader data(bytes);
    const QSize size = data.reader.size();
    return data.reader.transformation().testFlag(QImageIOHandler::TransformationRotate90) ? size.transposed()
                                                                                          : size;
}

QImage imageWithData(const QByteArray& bytes)
{
    DataReader data(bytes);
    QImageReader& reader = data.reader;
    QImageReader::setAllocationLimit(decodingLimitMiB);
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > mostPixels)
        return {};
    if (size.isValid() && decodedSize(size) != size)
        reader.setScaledSize(decodedSize(size));
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
