#pragma once

#include "platform/toolkit/UIView.h"

// A view that the user can act on while it is enabled.
class UIControl : public UIView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(bool enabled READ isEnabled NOTIFY changed FINAL)

public:
    using UIView::UIView;

    [[nodiscard]] bool isEnabled() const { return enabled; }
    void setEnabled(bool value) { assign(enabled, value); }

private:
    bool enabled = true;
};
