#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

// The picture in `bytes`, whatever its format; a null image where there is none that decodes within 128 MiB
// of pixels.
[[nodiscard]] QImage imageWithData(const QByteArray& bytes);

// How large `imageWithData` shows the picture in `bytes`, without decoding it; empty where there is none.
// Large pictures are decoded smaller, in the same shape.
[[nodiscard]] QSize imageSizeOfData(const QByteArray& bytes);

// `quality` from 0 to 1; empty where `image` is null or can't be encoded. Transparent parts come out white.
[[nodiscard]] QByteArray UIImageJPEGRepresentation(const QImage& image, double quality);

// `image` drawn into a bitmap of `size`, filling it: the aspect ratio is not kept. `image` must not be null.
[[nodiscard]] QImage imageDrawnInto(const QSize& size, const QImage& image);
