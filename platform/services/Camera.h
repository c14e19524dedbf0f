#pragma once

// A camera that takes still pictures.
class Camera
{
public:
    virtual ~Camera() = default;

    [[nodiscard]] virtual bool isAvailable() const = 0;
};
