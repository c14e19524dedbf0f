#pragma once

#include "platform/services/Camera.h"

class CameraSession;

// The camera that Qt Multimedia takes for the default one. Unlike the rest of it, the first isAvailable() may
// be called on any thread, and takes as long as it takes.
class MultimediaCamera : public QObject, public Camera
{
    Q_OBJECT
    Q_INTERFACES(Camera)
    Q_PLUGIN_METADATA(IID "marrowvale.Camera/1")

public:
    MultimediaCamera();
    ~MultimediaCamera() override;

    [[nodiscard]] bool isAvailable() override;
    void start(Told told) override;
    void stop() override;

private:
    std::unique_ptr<CameraSession> session;
};
