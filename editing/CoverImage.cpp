#include "editing/CoverImage.h"

#include "platform/toolkit/UIImage.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr QSize coverSize(150, 150);
constexpr double coverQuality = 0.9;
constexpr qint64 largestCoverFile = 64LL * 1024 * 1024;

} // namespace

QByteArray storedCover(const QImage& image)
{
    return UIImageJPEGRepresentation(imageDrawnInto(coverSize, image), coverQuality);
}

QImage imageInFile(const QUrl& url)
{
    QFile file(url.toLocalFile());
    // Reading a pipe or a device might never end.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray content = file.read(largestCoverFile + 1);
    return content.size() > largestCoverFile ? QImage() : imageWithData(content);
}
