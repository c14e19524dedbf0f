#include "platform/toolkit/UIImage.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

namespace {

constexpr int bytesPerMiB = 1024 * 1024;
constexpr int bytesPerPixel = 4;
// For what is decoded at full size on the way to a smaller picture: 67 million pixels, as of two large
// screens.
constexpr int decodingLimitMiB = 256;
constexpr qint64 mostPixelsKept = 128LL * bytesPerMiB / bytesPerPixel;
// A photo of a telephone may have 200 million. JPEG is decoded smaller without ever being held at full size.
constexpr qint64 mostPixels = 256'000'000;
constexpr qint64 largestFile = 64LL * bytesPerMiB;
constexpr int qualityScale = 100;

struct RasterFormat
{
    // As Qt names it.
    const char* name = nullptr;
    // How its data begins; "?" stands for any byte.
    QByteArrayView start;
    const char* fileSuffixes = nullptr;
};

using namespace std::string_view_literals;

// Only what holds nothing but pixels: Qt may have plugins for formats that refer to other files, as SVG does.
constexpr RasterFormat rasterFormats[] = {
    {"jpeg", "\xff\xd8\xff"sv, "jpg jpeg"},
    {"png", "\x89PNG\r\n\x1a\n"sv, "png"},
    {"gif", "GIF87a"sv, "gif"},
    {"gif", "GIF89a"sv, ""},
    {"webp", "RIFF????WEBP"sv, "webp"},
    {"bmp", "BM"sv, "bmp"},
    {"tiff", "II*\0"sv, "tif tiff"},
    {"tiff", "MM\0*"sv, ""},
};

bool startsWith(const QByteArray& bytes, QByteArrayView start)
{
    return bytes.size() >= start.size() &&
           std::equal(start.begin(), start.end(), bytes.begin(),
                      [](char wanted, char found) { return wanted == '?' || wanted == found; });
}

// Empty where the data is in none of the formats.
QByteArray formatOf(const QByteArray& bytes)
{
    for (const auto& format : rasterFormats)
        if (startsWith(bytes, format.start))
            return format.name;
    return {};
}

QImage onWhite(const QImage& image)
{
    if (!image.hasAlphaChannel())
        return image;
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, image);
    return opaque;
}

// Half as large until it may be kept.
QSize decodedSize(QSize size)
{
    while (qint64(size.width()) * size.height() > mostPixelsKept)
        size /= 2;
    return size;
}

void limitDecoding()
{
    static const bool isLimited = [] {
        QImageReader::setAllocationLimit(decodingLimitMiB);
        return true;
    }();
    Q_UNUSED(isLimited)
}

// The one way from bytes to a picture. The format is set, never guessed by Qt's plugins.
struct DataReader
{
    explicit DataReader(const QByteArray& bytes)
    {
        limitDecoding();
        const QByteArray format = formatOf(bytes);
        if (format.isEmpty())
            return;
        buffer.setData(bytes);
        reader.setAutoDetectImageFormat(false);
        reader.setFormat(format);
        reader.setDevice(&buffer);
        reader.setAutoTransform(true);
        storedSize = reader.size();
        if (storedSize.isEmpty() || qint64(storedSize.width()) * storedSize.height() > mostPixels)
            storedSize = {};
    }

    QBuffer buffer;
    QImageReader reader;
    // Before it is turned; empty where there is no picture to decode.
    QSize storedSize;
};

} // namespace

QStringList imageFileSuffixes()
{
    QStringList suffixes;
    for (const auto& format : rasterFormats)
        if (QImageReader::supportedImageFormats().contains(format.name))
            suffixes << QString::fromLatin1(format.fileSuffixes).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return suffixes;
}

QSize imageSizeOfData(const QByteArray& bytes)
{
    const DataReader data(bytes);
    const bool isTurned = data.reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    return isTurned ? data.storedSize.transposed() : data.storedSize;
}

QImage imageWithData(const QByteArray& bytes)
{
    DataReader data(bytes);
    if (data.storedSize.isEmpty())
        return {};
    if (const QSize size = decodedSize(data.storedSize); size != data.storedSize)
        data.reader.setScaledSize(size);
    const QImage picture = data.reader.read();
    // The size that a GIF announces need not be that of its frame.
    const QSize size = decodedSize(picture.size());
    return size == picture.size() ? picture : picture.scaled(size);
}

QImage imageInFile(const QString& path)
{
    QFile file(path);
    // Reading a pipe or a device might never end.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray content = file.read(largestFile + 1);
    return content.size() > largestFile ? QImage() : imageWithData(content);
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
