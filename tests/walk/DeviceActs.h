#pragma once

#include "tests/walk/Consequences.h"
#include "tests/walk/Step.h"

// Events outside the window: the desktop's dialogs are answered, the device changes. Each says what was
// done; empty: nothing.
class DeviceActs
{
public:
    explicit DeviceActs(WalkState& state)
        : state(state)
    {
    }

    [[nodiscard]] QString answerDialogs(const Step& step);
    [[nodiscard]] QString change(const Step& step);

private:
    [[nodiscard]] QString pickFile(bool cancelled);

    WalkState& state;
};
