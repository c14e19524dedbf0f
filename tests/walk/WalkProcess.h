#pragma once

#include "tests/walk/Step.h"

#include <optional>

struct WalkResult
{
    // Steps that meant something where they were taken, and what each did.
    QStringList done;
    // How many steps were begun, the last of them the failing one.
    int begun = 0;
    // Empty: everything held.
    QString failure;
};

// Takes a walk in a process of its own, so that a crash ends that alone. Call it in a process without an
// application.
[[nodiscard]] WalkResult takeWalk(unsigned seed, const std::vector<Step>& steps);

// The shortest list of steps found within about `seconds` (by the real clock) that still fails.
[[nodiscard]] std::vector<Step> shrunkSteps(unsigned seed, std::vector<Step> failing, int seconds);
