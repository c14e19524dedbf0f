#include "platform/services/DialogStacking.h"

#include <QWidget>
#include <QWindow>

void stackAbove(QWidget& dialog, QWindow* window)
{
    dialog.winId();
    if (window != nullptr && dialog.windowHandle() != nullptr)
        dialog.windowHandle()->setTransientParent(window);
}
