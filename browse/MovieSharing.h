#pragma once

#include "model/Movies.h"

#include <memory>
#include <vector>

// The movies as plain text, a block of labelled lines each, blocks parted by blank lines. Absent texts have
// no line.
[[nodiscard]] QString sharedText(const std::vector<std::shared_ptr<Movies>>& movies);
