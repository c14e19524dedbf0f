#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QStringList>

// Returns the picture in `bytes`: JPEG, PNG, GIF and BMP, and WebP and TIFF where Qt has their plugins. Null
// where there is none, where it has over 256 million pixels, or where decoding it takes over 256 MiB. A
// picture of over 33.5 million pixels is decoded smaller, in the same shape. Opens no file. May be called on
// any thread.
[[nodiscard]] QImage imageWithData(const QByteArray& bytes);

// Returns the size of the picture in `bytes` without decoding it, as `imageWithData` turns it; empty where
// there is none.
[[nodiscard]] QSize imageSizeOfData(const QByteArray& bytes);

// Returns the picture in a file of at most 64 MiB, whatever its name says; null where there is none.
[[nodiscard]] QImage imageInFile(const QString& path);

// The endings of the names of files that hold such pictures, without the dot.
[[nodiscard]] QStringList imageFileSuffixes();

// `quality` from 0 to 1; empty where `image` is null or can't be encoded. Transparent parts come out white.
[[nodiscard]] QByteArray UIImageJPEGRepresentation(const QImage& image, double quality);

// `image` drawn into a bitmap of `size`, filling it: the aspect ratio is not kept. `image` must not be null.
[[nodiscard]] QImage imageDrawnInto(const QSize& size, const QImage& image);
