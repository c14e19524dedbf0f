#pragma once

#include "tests/walk/ModelProgram.h"

// The texts with which an editor opens.
[[nodiscard]] FormTexts openingForm(const ModelEditor& editor);
