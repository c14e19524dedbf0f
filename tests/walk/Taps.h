#pragma once

#include "tests/walk/Consequences.h"
#include "tests/walk/Step.h"

// Taps on what is in sight, by finger, mouse or assistive technology. Each says what was done; empty:
// nothing.
class Taps
{
public:
    explicit Taps(WalkState& state)
        : state(state)
        , consequences(state)
    {
    }

    [[nodiscard]] QString tapControl(const Step& step);
    // The control of the step's name, if it is in sight.
    [[nodiscard]] QString tapNamed(const Step& step);
    [[nodiscard]] QString tapRow(const Step& step);
    // `twice`: a second tap follows at once.
    [[nodiscard]] QString act(const Seen& control, Hand::Way way, bool twice);

private:
    WalkState& state;
    Consequences consequences;
};
