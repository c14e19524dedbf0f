#pragma once

#include <QImage>
#include <QString>

// The clipboard that all programs share.
class Pasteboard
{
public:
    virtual ~Pasteboard() = default;

    // Returns the picture on it, or in the file that was copied to it; null where there is none that decodes.
    [[nodiscard]] virtual QImage image() const = 0;
    // Replaces what is on it by `text` and `image` together, so that each program takes what it can use. A
    // null image is left out, and so is an empty text beside an image.
    virtual void setContent(const QString& text, const QImage& image) = 0;
};
