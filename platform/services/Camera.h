#pragma once

#include "platform/foundation/Result.h"

#include <QImage>
#include <QObject>
#include <functional>

// A camera that shows what is in front of it. It is asked, and tells, on the main thread.
class Camera
{
public:
    // What the camera sees now, unmirrored, at most 1280 by 1280 pixels and no longer the camera's own
    // memory; or why it will tell nothing more.
    using Told = std::function<void(const Result<QImage>&)>;

    virtual ~Camera() = default;

    // Whether there is a camera right now. Takes two seconds at the very most, usually none.
    [[nodiscard]] virtual bool isAvailable() = 0;

    // Tells picture after picture until stop(), the first one once the event loop is back in charge. Only
    // while a camera is available.
    virtual void start(Told told) = 0;

    // Lets go of the camera and tells nothing more; not started: does nothing. Not to be called by what is
    // told.
    virtual void stop() = 0;
};
Q_DECLARE_INTERFACE(Camera, "marrowvale.Camera/1")
