#pragma once

#include "tests/walk/DeviceActs.h"
#include "tests/walk/RowActs.h"
#include "tests/walk/Taps.h"

// Takes a step in front of the present window: does it, and changes the model as it should change the
// program.
class Acts
{
public:
    explicit Acts(WalkState& state)
        : state(state)
        , consequences(state)
        , taps(state)
        , rows(state)
        , device(state)
    {
    }

    // Says what was done; empty: the step has no meaning here.
    [[nodiscard]] QString perform(const Step& step);

private:
    [[nodiscard]] QString pressKey(const Step& step);
    [[nodiscard]] QString typeText(const Step& step);
    [[nodiscard]] QString search(const Step& step);
    [[nodiscard]] QString retype(const Step& step);
    [[nodiscard]] QString moveView(const Step& step);
    [[nodiscard]] QString strokeFromEdge();
    [[nodiscard]] QString resize(const Step& step);
    [[nodiscard]] QString wait(const Step& step);

    WalkState& state;
    Consequences consequences;
    Taps taps;
    RowActs rows;
    DeviceActs device;
};
