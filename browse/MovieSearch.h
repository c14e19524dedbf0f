#pragma once

#include "model/Movies.h"

#include <memory>
#include <optional>
#include <vector>

// The movies of `movies`, order kept, whose field under `sortName` contains `searchText`, both lower-cased. A
// movie without that field never matches. Absent: `sortName` names no searched field.
[[nodiscard]] std::optional<std::vector<std::shared_ptr<Movies>>>
moviesMatching(const QString& searchText, const QString& sortName,
               const std::vector<std::shared_ptr<Movies>>& movies);
