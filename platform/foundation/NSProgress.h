#pragma once

#include <cstdint>

// How much of some work is done, in units. Both counts are the owner's to set.
struct NSProgress
{
    std::int64_t totalUnitCount = 0;
    std::int64_t completedUnitCount = 0;

    // More than 1 when more is done than there was to do; 0 where there is nothing to do.
    [[nodiscard]] double fractionCompleted() const
    {
        return totalUnitCount > 0
                   ? static_cast<double>(completedUnitCount) / static_cast<double>(totalUnitCount)
                   : 0;
    }
};
