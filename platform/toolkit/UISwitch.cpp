#include "platform/toolkit/UISwitch.h"

void UISwitch::toggle()
{
    if (!isEnabled())
        return;
    setOn(!on);
    Q_EMIT valueChanged();
}
