#pragma once

#include "platform/foundation/UserDefaults.h"

#include <functional>

// Asks for a review, at most once in seven days.
class ReviewService
{
public:
    using Clock = std::function<QDateTime()>;

    explicit ReviewService(Clock clock = [] { return QDateTime::currentDateTimeUtc(); });

    // When a review was last requested; absent: never, or the setting holds something else than a date.
    [[nodiscard]] std::optional<QDateTime> lastRequest() const;
    // An absent value leaves the stored one.
    void setLastRequest(const std::optional<QDateTime>& moment);

    // Whether the last request is more than seven days of the user's calendar ago.
    [[nodiscard]] bool canRequestReview() const;
    // Does nothing where it can't. Counts as a request whether or not the device shows its prompt. Needs a
    // current Device.
    void requestReview();

    UserDefaults defaults = UserDefaults::standard();

private:
    Clock clock;
};
