#include "platform/services/LinuxPasteboard.h"

#include "platform/toolkit/UIImage.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

namespace {

bool isImageFormat(const QString& format)
{
    return format.startsWith(QStringLiteral("image/"));
}

// Decoded here rather than by Qt, which takes large pictures for none and would draw vector graphics.
QImage encodedImage(const QMimeData& content)
{
    for (const QString& format : content.formats()) {
        if (!isImageFormat(format))
            continue;
        if (const QImage image = imageWithData(content.data(format)); !image.isNull())
            return image;
    }
    return {};
}

QImage copiedFile(const QMimeData& content)
{
    for (const QUrl& url : content.urls()) {
        if (const QImage image = imageInFile(url.toLocalFile()); !image.isNull())
            return image;
    }
    return {};
}

// Only this program's own pictures lie on the clipboard without an encoding.
QImage ownImage(const QMimeData& content)
{
    const QStringList formats = content.formats();
    return std::none_of(formats.begin(), formats.end(), isImageFormat) ? content.imageData().value<QImage>()
                                                                       : QImage();
}

} // namespace

QImage imageIn(const QMimeData& content)
{
    for (const auto& find : {encodedImage, ownImage, copiedFile}) {
        if (const QImage image = find(content); !image.isNull())
            return image;
    }
    return {};
}

QImage LinuxPasteboard::image() const
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    return content == nullptr ? QImage() : imageIn(*content);
}

void LinuxPasteboard::setContent(const QString& text, const QImage& image)
{
    auto content = std::make_unique<QMimeData>();
    if (!image.isNull())
        content->setImageData(image);
    if (!text.isEmpty() || image.isNull())
        content->setText(text);
    QGuiApplication::clipboard()->setMimeData(content.release());
}
