#pragma once

#include <QByteArray>
#include <QImage>
#include <QUrl>

// The form in which covers are stored: a JPEG of 150 by 150 pixels, whatever the picture's shape. `image`
// must not be null; empty where it can't be encoded.
[[nodiscard]] QByteArray storedCover(const QImage& image);

// The picture in a file of at most 64 MiB, whatever its name says; null where there is none.
[[nodiscard]] QImage imageInFile(const QUrl& url);
