#pragma once

#include "platform/toolkit/UIView.h"

// A line of text.
class UILabel : public UIView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    Q_PROPERTY(QColor textColor READ textColor NOTIFY changed FINAL)

public:
    using UIView::UIView;

    [[nodiscard]] QString text() const { return content; }
    void setText(const QString& value) { assign(content, value); }

    // Invalid until set: the layout's own colour.
    [[nodiscard]] QColor textColor() const { return color; }
    void setTextColor(const QColor& value) { assign(color, value); }

private:
    QString content;
    QColor color;
};
