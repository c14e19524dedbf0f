#pragma once

#include "platform/services/Camera.h"

// A device without a camera.
class NoCamera : public Camera
{
public:
    [[nodiscard]] bool isAvailable() const override { return false; }
};
