#pragma once

#include "tests/walk/Acts.h"
#include "tests/walk/Invariants.h"

// One random user in front of the real window, beside a model of what the program should do. Needs the fake
// clock and an application.
class Walk
{
public:
    explicit Walk(unsigned seed);

    // Does the step, then checks everything that must hold. Throws WalkFailure. Returns what was done; empty:
    // nothing.
    QString take(const Step& step);
    // Escape leads home, from wherever it is, within ten steps.
    void goHome();

private:
    WalkState state;
    Acts acts;
    Invariants invariants;
};
