#include "storyboard/ControlTrigger.h"

ControlTrigger::ControlTrigger(const UIViewController& screen, std::function<void()> act, QObject* control)
    : QObject(control)
    , screen(screen)
    , act(std::move(act))
{
}

QMetaMethod ControlTrigger::slot()
{
    return staticMetaObject.method(staticMetaObject.indexOfMethod("pull()"));
}

void ControlTrigger::pull()
{
    if (screen.isFrontmost())
        act();
}
