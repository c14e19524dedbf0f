#pragma once

#include "platform/foundation/Result.h"

#include <optional>

// What a run of very many saves remembers of those that the store refused. Each attempt writes all that
// waits, so attempts are made only when the number that waits has doubled: all of them together take linear
// time.
class RefusedSaves
{
public:
    [[nodiscard]] bool any() const { return latest.has_value(); }
    // Always true where nothing was refused.
    [[nodiscard]] bool isAttemptDue(std::size_t waiting) const { return !latest || waiting >= enough; }
    // The error of the latest attempt; there must be one.
    [[nodiscard]] const NSError& error() const { return *latest; }

    void note(const NSError& error, std::size_t waiting)
    {
        latest = error;
        enough = 2 * waiting;
    }
    void clear() { latest.reset(); }

private:
    std::optional<NSError> latest;
    std::size_t enough = 0;
};
