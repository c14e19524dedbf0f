#include "storyboard/SegueTrigger.h"

SegueTrigger::SegueTrigger(UIViewController& screen, QString identifier, QObject* control)
    : QObject(control)
    , screen(screen)
    , identifier(std::move(identifier))
{
}

QMetaMethod SegueTrigger::slot()
{
    return staticMetaObject.method(staticMetaObject.indexOfMethod("follow()"));
}

void SegueTrigger::follow()
{
    screen.performSegue(identifier);
}
