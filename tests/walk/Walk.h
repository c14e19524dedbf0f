#pragma once

#include "tests/walk/Acts.h"
#include "tests/walk/Invariants.h"

// One random user in front of the real window, beside a model of what the program should do. Needs the fake
// clock and an application.
class Walk
{
public:
    explicit Walk(unsigned seed);

    // Does the step. Returns what was done; empty: nothing.
    [[nodiscard]] QString take(const Step& step);
    // Checks everything that must hold after a step. Throws WalkFailure.
    void check() { invariants.check(); }
    // Escape leads home, from wherever it is, within ten steps.
    void goHome();

private:
    WalkState state;
    Acts acts;
    Invariants invariants;
};
