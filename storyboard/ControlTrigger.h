#pragma once

#include "platform/toolkit/UIViewController.h"

#include <QMetaMethod>
#include <functional>

// Calls `act` whenever its slot is called while the screen is frontmost. A control that lies behind something
// modal, or whose layout slides away, is still reached by a second tap or by assistive technology. Lives as
// long as the control; the screen must outlive both.
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
