#pragma once

#include "platform/camera/VideoFrames.h"
#include "platform/services/Camera.h"

#include <QCamera>
#include <QMediaCaptureSession>

// A camera that is on, from construction to destruction.
class CameraSession : public QObject
{
    Q_OBJECT

public:
    // Of a null `device` nothing but the failure is told.
    CameraSession(const QCameraDevice& device, Camera::Told told);

private:
    void turnOn();
    void fail(const QString& sentence);

    // Null once it was told a failure.
    Camera::Told told;
    QCamera camera;
    QVideoSink sink;
    VideoFrames frames;
    // Goes first, since it uses what stands above.
    QMediaCaptureSession session;
};
