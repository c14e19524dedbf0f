#pragma once

#include <QImage>
#include <QObject>
#include <QVideoFrame>
#include <QVideoSink>
#include <functional>

// The frames that a video sink receives, as pictures: told on the thread of this object, whichever thread
// they come from. Frames that come faster than they are told are left out.
class VideoFrames : public QObject
{
    Q_OBJECT

public:
    // Of a picture, in pixels; a larger frame is scaled down to it.
    static constexpr QSize largest{1280, 1280};

    // `sink` must outlive this.
    VideoFrames(const QVideoSink& sink, std::function<void(const QImage&)> told);

private:
    void tellLatest();

    const QVideoSink& sink;
    std::function<void(const QImage&)> told;
    QVideoFrame latest;
};
