#include "platform/toolkit/UIImageView.h"

void UIImageView::setImage(const QImage& value)
{
    // Comparing pixels would cost more than showing the picture again.
    picture = value;
    Q_EMIT changed();
}
