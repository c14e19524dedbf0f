#include "platform/toolkit/UIImage.h"
#include "tests/support/OpenedFiles.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QtEndian>
#include <gtest/gtest.h>

namespace {

QImage plain(QSize size, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, format);
    image.fill(Qt::red);
    return image;
}

QByteArray encoded(const QImage& image, const char* format)
{
    QBuffer buffer;
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return buffer.data();
}

QByteArray corpus(const char* name)
{
    QFile file(QStringLiteral(MARROWVALE_SOURCE_DIR "/tests/fuzz/corpus/image/") + QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << name;
    return file.readAll();
}

// A picture file of the user's, as a hostile one may refer to it.
QString privatePicture()
{
    const auto path = QDir::home().filePath(QStringLiteral("private.png"));
    EXPECT_TRUE(plain({8, 8}).save(path));
    return path;
}

QByteArray svgShowing(const QString& path)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='8' "
           "height='8'>"
           "<image width='8' height='8' xlink:href='" +
           path.toUtf8() + "'/></svg>";
}

// A header alone may claim any size.
QByteArray bmpClaiming(qint32 width, qint32 height)
{
    auto bytes = encoded(plain({3, 3}), "BMP");
    qToLittleEndian(width, bytes.data() + 18);
    qToLittleEndian(height, bytes.data() + 22);
    return bytes;
}

struct Data
{
    const char* what;
    QByteArray bytes;
    QSize size;
};

std::vector<Data> wellFormed()
{
    std::vector<Data> all{
        {"JPEG", encoded(plain({30, 10}), "JPEG"), {30, 10}},
        {"PNG", encoded(plain({30, 10}, QImage::Format_ARGB32), "PNG"), {30, 10}},
        {"PNG of 16 bits", encoded(plain({30, 10}, QImage::Format_RGBA64), "PNG"), {30, 10}},
        {"BMP", encoded(plain({30, 10}), "BMP"), {30, 10}},
        {"GIF", corpus("gif"), {3, 2}},
        {"JPEG lying on its side", corpus("jpeg_turned"), {2, 3}},
    };
    for (const auto* format : {"webp", "tiff"})
        if (QImageReader::supportedImageFormats().contains(format))
            all.push_back({format, corpus(format), {3, 2}});
    return all;
}

std::vector<Data> withoutPicture()
{
    const auto png = encoded(plain({300, 100}), "PNG");
    const auto svg = svgShowing(privatePicture());
    return {
        {"nothing", {}, {}},
        {"words", "no picture", {}},
        {"half a PNG", png.left(png.size() / 2), {}},
        {"the start of a PNG", png.left(8), {}},
        {"the start of a JPEG", "\xff\xd8\xff", {}},
        {"SVG", svg, {}},
        {"SVG after a mark", "\xef\xbb\xbf" + svg, {}},
        {"SVG after a JPEG's start", "\xff\xd8\xff\xe0" + svg, {}},
        {"SVG after a PNG's start", png.left(8) + svg, {}},
        {"SVG that begins as BMP does", "BM" + svg, {}},
        {"SVG, packed", corpus("svgz"), {}},
        {"XPM", encoded(plain({3, 3}), "XPM"), {}},
        {"PPM", encoded(plain({3, 3}), "PPM"), {}},
        {"XBM", encoded(plain({3, 3}, QImage::Format_Mono), "XBM"), {}},
        {"ICO", corpus("ico"), {}},
        {"3.6 GB of pixels", bmpClaiming(30'000, 30'000), {}},
        {"a height below zero", bmpClaiming(3, std::numeric_limits<qint32>::min()), {}},
        {"no width", bmpClaiming(0, 3), {}},
    };
}

TEST(ImageTest, OnlyRasterFormatsDecode)
{
    for (const auto& [what, bytes, size] : wellFormed()) {
        EXPECT_EQ(imageWithData(bytes).size(), size) << what;
        EXPECT_EQ(imageSizeOfData(bytes), size) << what;
    }
    for (const auto& [what, bytes, size] : withoutPicture())
        EXPECT_TRUE(imageWithData(bytes).isNull()) << what;
}

TEST(ImageTest, NoPictureOpensAFile)
{
    auto all = withoutPicture();
    for (const auto& each : wellFormed())
        all.push_back(each);
    const OpenedFiles opened;
    for (const auto& [what, bytes, size] : all) {
        (void)imageWithData(bytes);
        (void)imageSizeOfData(bytes);
        EXPECT_EQ(opened.paths(), QStringList()) << what;
    }
    const auto path = privatePicture();
    EXPECT_EQ(QImage::fromData(svgShowing(path)).pixelColor(4, 4), QColor(Qt::red)) << "Qt itself reads it";
    EXPECT_TRUE(opened.paths().contains(path)) << "it would be noticed";
}

TEST(ImageTest, AJpegCutShortShowsWhatThereIs)
{
    const auto jpeg = encoded(plain({300, 100}), "JPEG");
    const auto shown = imageWithData(jpeg.left(jpeg.size() - 20));
    EXPECT_EQ(shown.size(), QSize(300, 100));
    EXPECT_GT(shown.pixelColor(0, 0).red(), 200);
}

TEST(ImageTest, LargePicturesAreDecodedSmaller)
{
    const QImage large(6400, 6000, QImage::Format_Grayscale8);
    for (const auto* format : {"JPEG", "PNG", "BMP"})
        EXPECT_EQ(imageWithData(encoded(large, format)).size(), QSize(3200, 3000)) << format;
}

TEST(ImageTest, ACoverFillsTheSquareAndLosesTransparency)
{
    QImage wide(300, 100, QImage::Format_ARGB32);
    wide.fill(Qt::transparent);
    const QImage square = imageDrawnInto({150, 150}, wide);
    EXPECT_EQ(square.size(), QSize(150, 150));
    const QImage decoded = imageWithData(UIImageJPEGRepresentation(square, 0.9));
    EXPECT_EQ(decoded.pixelColor(75, 75), QColor(Qt::white));
    EXPECT_TRUE(UIImageJPEGRepresentation(QImage(), 0.9).isEmpty());
}

} // namespace
