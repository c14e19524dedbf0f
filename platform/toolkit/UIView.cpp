#include "platform/toolkit/UIView.h"

void UIView::setHidden(bool value, double seconds)
{
    hidingSeconds = seconds;
    assign(hidden, value);
}
