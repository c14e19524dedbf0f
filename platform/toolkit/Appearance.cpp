#include "platform/toolkit/Appearance.h"

Layer rowLayer()
{
    return {.cornerRadius = 10, .borderWidth = 2, .borderColor = Qt::black};
}

QColor rowBackgroundColor()
{
    return colorWithHue(0.5, 0.06, 0.96, 1.0);
}
