#pragma once

#include <QByteArray>
#include <QImage>

// The form in which covers are stored: a JPEG of 150 by 150 pixels, whatever the picture's shape. `image`
// must not be null; empty where it can't be encoded.
[[nodiscard]] QByteArray storedCover(const QImage& image);
