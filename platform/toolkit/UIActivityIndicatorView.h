#pragma once

#include "platform/toolkit/UIView.h"

// Something that turns while work goes on; hidden while it stands still.
class UIActivityIndicatorView : public UIView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(bool animating READ isAnimating NOTIFY changed FINAL)

public:
    using UIView::UIView;

    [[nodiscard]] bool isAnimating() const { return turning; }
    void startAnimating() { assign(turning, true); }
    void stopAnimating() { assign(turning, false); }

private:
    bool turning = false;
};
