#include "platform/toolkit/Appearance.h"

namespace {

constexpr double countHeaderFontSize = 13;

} // namespace

Layer rowLayer()
{
    return {.cornerRadius = 10, .borderWidth = 2, .borderColor = Qt::black};
}

QColor rowBackgroundColor()
{
    return colorWithHue(0.5, 0.06, 0.96, 1.0);
}

LabelContent countHeader(const QString& text)
{
    return {.text = text,
            .textColor = Qt::red,
            .backgroundColor = Qt::lightGray,
            .fontSize = countHeaderFontSize,
            .centred = true};
}
