#include "editing/CoverImage.h"

#include "platform/toolkit/UIImage.h"

namespace {

constexpr QSize coverSize(150, 150);
constexpr double coverQuality = 0.9;

} // namespace

QByteArray storedCover(const QImage& image)
{
    return UIImageJPEGRepresentation(imageDrawnInto(coverSize, image), coverQuality);
}
