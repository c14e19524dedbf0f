#pragma once

#include <QImage>
#include <QString>

// The built-in picture "BlackandwhiteMovielogo.jpg", which stands in for a movie without a cover. Decoded
// once.
[[nodiscard]] const QImage& movieLogo();

// Where the drawing of a symbol lies, such as "square.and.arrow.up"; the file need not exist.
[[nodiscard]] QString symbolPath(const QString& name);
