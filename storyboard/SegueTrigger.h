#pragma once

#include "platform/toolkit/UIViewController.h"

#include <QMetaMethod>

// Follows one segue of a screen whenever its slot is called; lives as long as the control that calls it.
class SegueTrigger : public QObject
{
    Q_OBJECT

public:
    SegueTrigger(UIViewController& screen, QString identifier, QObject* control);

    [[nodiscard]] static QMetaMethod slot();
    Q_INVOKABLE void follow();

private:
    UIViewController& screen;
    QString identifier;
};
