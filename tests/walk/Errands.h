#pragma once

#include "tests/walk/Step.h"

#include <random>

// Returns the steps of something that a user comes for: from the home menu through several screens. They are
// ordinary steps that choose among what is in sight, so that any of them can be left out. Successive numbers
// go round through all errands and through the groups, orders and lists that each is about.
[[nodiscard]] std::vector<Step> errandSteps(unsigned number, std::mt19937& random);

// The name of the control that a step of the kind TapNamed looks for.
[[nodiscard]] const QString& controlName(const Step& step);
