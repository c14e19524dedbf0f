#pragma once

#include "platform/toolkit/UIViewController.h"

#include <QMetaMethod>
#include <functional>

// Calls `act` whenever its slot is called, unless the screen presents something modal: then the control lies
// behind that, where a second tap or assistive technology still reaches it. Lives as long as the control; the
// screen must outlive both.
class ControlTrigger : public QObject
{
    Q_OBJECT

public:
    ControlTrigger(const UIViewController& screen, std::function<void()> act, QObject* control);

    [[nodiscard]] static QMetaMethod slot();
    Q_INVOKABLE void pull();

private:
    const UIViewController& screen;
    std::function<void()> act;
};
