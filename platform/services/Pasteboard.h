#pragma once

#include <QImage>
#include <QString>

// The clipboard that all programs share.
class Pasteboard
{
public:
    virtual ~Pasteboard() = default;

    [[nodiscard]] virtual bool hasImages() const = 0;
    // A null image where there is none or it doesn't decode.
    [[nodiscard]] virtual QImage image() const = 0;
    virtual void setString(const QString& text) = 0;
    virtual void setImage(const QImage& image) = 0;
};
