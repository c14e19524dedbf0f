#pragma once

#include "platform/toolkit/UIView.h"

#include <QImage>

// A picture, or none.
class UIImageView : public UIView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(QImage image READ image NOTIFY changed FINAL)
    Q_PROPERTY(ContentMode contentMode READ contentMode NOTIFY changed FINAL)

public:
    enum class ContentMode { ScaleToFill, ScaleAspectFit };
    Q_ENUM(ContentMode)

    using UIView::UIView;

    // A null image: none.
    [[nodiscard]] QImage image() const { return picture; }
    void setImage(const QImage& value);

    [[nodiscard]] ContentMode contentMode() const { return mode; }
    void setContentMode(ContentMode value) { assign(mode, value); }

private:
    QImage picture;
    ContentMode mode = ContentMode::ScaleAspectFit;
};
