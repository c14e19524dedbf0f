#pragma once

#include "platform/toolkit/UIView.h"

#include <algorithm>

// A bar that fills as work goes on.
class UIProgressView : public UIView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(double progress READ progress NOTIFY changed FINAL)

public:
    using UIView::UIView;

    // From 0 to 1, whatever is set.
    [[nodiscard]] double progress() const { return part; }
    // The layout moves the bar there.
    void setProgress(double value) { assign(part, std::clamp(value, 0.0, 1.0)); }

private:
    double part = 0;
};
