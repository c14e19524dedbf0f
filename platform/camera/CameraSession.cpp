#include "platform/camera/CameraSession.h"

#include <tuple>

namespace {

// Below this many pictures a second a viewfinder stutters.
constexpr float smoothRate = 15;

auto merit(const QCameraFormat& format)
{
    const QSize size = format.resolution();
    const bool fits = size.boundedTo(VideoFrames::largest) == size;
    return std::tuple(fits, format.maxFrameRate() >= smoothRate,
                      (fits ? 1 : -1) * size.width() * size.height(), format.maxFrameRate());
}

// The sharpest that needs no scaling and moves smoothly. A null one, which leaves the choice to the camera,
// where it names none.
QCameraFormat viewfinderFormat(const QCameraDevice& device)
{
    const QList<QCameraFormat> formats = device.videoFormats();
    const auto best = std::max_element(
        formats.begin(), formats.end(),
        [](const QCameraFormat& left, const QCameraFormat& right) { return merit(left) < merit(right); });
    return best == formats.end() ? QCameraFormat() : *best;
}

} // namespace

CameraSession::CameraSession(const QCameraDevice& device, Camera::Told told)
    : told(std::move(told))
    , camera(device)
    , frames(sink, [this](const QImage& picture) {
        if (this->told)
            this->told(picture);
    })
{
    // Failures are told later, when the caller knows that it asked.
    if (device.isNull())
        QMetaObject::invokeMethod(
            this, [this] { fail(QStringLiteral("There is no camera available.")); }, Qt::QueuedConnection);
    else
        turnOn();
}

void CameraSession::turnOn()
{
    const auto failed = [this](QCamera::Error /*error*/, const QString& reason) {
        qWarning("The camera failed: %s", qPrintable(reason));
        fail(QStringLiteral("The camera can't be used. Another program may be using it."));
    };
    connect(&camera, &QCamera::errorOccurred, this, failed, Qt::QueuedConnection);
    camera.setCameraFormat(viewfinderFormat(camera.cameraDevice()));
    // In this order: a sink that comes later has the running source renegotiate its buffers.
    session.setVideoSink(&sink);
    session.setCamera(&camera);
    camera.start();
}

void CameraSession::fail(const QString& sentence)
{
    if (const Camera::Told last = std::exchange(told, nullptr))
        last(NSError{sentence, {}});
}
