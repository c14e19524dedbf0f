#include "platform/camera/VideoFrames.h"

VideoFrames::VideoFrames(const QVideoSink& sink, std::function<void(const QImage&)> told)
    : sink(sink)
    , told(std::move(told))
{
    connect(&sink, &QVideoSink::videoFrameChanged, this, &VideoFrames::tellLatest, Qt::QueuedConnection);
}

void VideoFrames::tellLatest()
{
    const QVideoFrame frame = sink.videoFrame();
    // By now it may be a later frame than the one that was announced, told once already.
    if (!frame.isValid() || frame == latest)
        return;
    latest = frame;
    QImage picture = frame.toImage();
    if (picture.isNull())
        return;
    if (picture.width() > largest.width() || picture.height() > largest.height())
        picture = picture.scaled(largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    told(picture);
}
