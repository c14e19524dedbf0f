#pragma once

#include "platform/foundation/Result.h"

// Why a store refused a save, as far as the user can do something about it.
enum class SaveProblem {
    DiskFull,
    // Another connection holds the lock.
    InUse,
    ReadOnly,
    // The file at the store's path is no longer the one that is open.
    Replaced,
    // The disk, or the store, reports an error.
    Broken
};

// `error` is the error of a save.
[[nodiscard]] SaveProblem saveProblemOf(const NSError& error);
