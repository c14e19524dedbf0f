#include "platform/camera/VideoFrames.h"

#include <QCoreApplication>
#include <QVideoFrameFormat>
#include <cstring>
#include <gtest/gtest.h>
#include <thread>

namespace {

// Grey, as cameras give it: brightness and colour by turns, two bytes a pixel.
QVideoFrame greyFrame(const QSize& size, char brightness)
{
    QVideoFrame frame(QVideoFrameFormat(size, QVideoFrameFormat::Format_YUYV));
    EXPECT_TRUE(frame.map(QVideoFrame::WriteOnly));
    uchar* bytes = frame.bits(0);
    for (int index = 0; index < frame.mappedBytes(0); ++index)
        bytes[index] = index % 2 == 0 ? static_cast<uchar>(brightness) : 128;
    frame.unmap();
    return frame;
}

class VideoFramesTest : public testing::Test
{
protected:
    void arrive(const QVideoFrame& frame) { sink.setVideoFrame(frame); }

    QVideoSink sink;
    std::vector<QImage> told;
    VideoFrames frames{sink, [this](const QImage& picture) { told.push_back(picture); }};
};

TEST_F(VideoFramesTest, TheLatestFrameIsToldOnceAndOnTheOwnersThread)
{
    const std::thread::id here = std::this_thread::get_id();
    std::vector<std::thread::id> threads;
    const VideoFrames watching(sink, [&](const QImage&) { threads.push_back(std::this_thread::get_id()); });
    std::thread([this] {
        arrive(greyFrame({64, 48}, 16));
        arrive(greyFrame({64, 48}, 126));
    }).join();
    EXPECT_TRUE(told.empty());
    QCoreApplication::processEvents();
    EXPECT_EQ(threads, std::vector{here});
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].size(), QSize(64, 48));
    EXPECT_NEAR(told[0].pixelColor(20, 20).lightness(), 128, 4);
}

TEST_F(VideoFramesTest, ALargeFrameIsScaledDownAndAnEmptyOneLeftOut)
{
    arrive(QVideoFrame());
    QCoreApplication::processEvents();
    EXPECT_TRUE(told.empty());
    arrive(greyFrame({2560, 1440}, 126));
    QCoreApplication::processEvents();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].size(), QSize(1280, 720));
}

} // namespace
