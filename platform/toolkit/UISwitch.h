#pragma once

#include "platform/toolkit/UIControl.h"

// A switch that is on or off; off until set. Turned by code, it tells its layout alone.
class UISwitch : public UIControl
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(bool isOn READ isOn NOTIFY changed FINAL)

public:
    using UIControl::UIControl;

    [[nodiscard]] bool isOn() const { return on; }
    void setOn(bool value) { assign(on, value); }

    // The user turned it; a disabled switch stays as it is.
    Q_INVOKABLE void toggle();

Q_SIGNALS:
    // By the user.
    void valueChanged();

private:
    bool on = false;
};
