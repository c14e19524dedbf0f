#include "platform/camera/MultimediaCamera.h"

#include "platform/camera/CameraSession.h"

#include <QMediaDevices>
#include <glib.h>

namespace {

// The first list is made by GStreamer, which then tells the thread's main context of every device that comes
// or goes, sound included. Qt 6.4 releases a device that went once too often: pulling out a headset could
// crash or hang the program. So it is told on a context that nobody runs. The price is that a camera plugged
// in later is found by the program's next start.
QList<QCameraDevice> listedCameras()
{
    const std::unique_ptr<GMainContext, decltype(&g_main_context_unref)> unheard(g_main_context_new(),
                                                                                 g_main_context_unref);
    g_main_context_push_thread_default(unheard.get());
    QList<QCameraDevice> cameras = QMediaDevices::videoInputs();
    g_main_context_pop_thread_default(unheard.get());
    return cameras;
}

} // namespace

MultimediaCamera::MultimediaCamera() = default;

MultimediaCamera::~MultimediaCamera() = default;

bool MultimediaCamera::isAvailable()
{
    return !listedCameras().isEmpty();
}

void MultimediaCamera::start(Told told)
{
    // One program has a camera only once.
    session.reset();
    session = std::make_unique<CameraSession>(QMediaDevices::defaultVideoInput(), std::move(told));
}

void MultimediaCamera::stop()
{
    session.reset();
}
