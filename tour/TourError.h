#pragma once

#include <QString>
#include <stdexcept>

// Something is not as the tour expects it: the tour ends there.
struct TourError : std::runtime_error
{
    explicit TourError(const QString& message)
        : std::runtime_error(message.toStdString())
    {
    }
};
