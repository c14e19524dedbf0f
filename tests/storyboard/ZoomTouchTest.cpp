#include "editing/ZoomViewController.h"
#include "tests/storyboard/SceneTest.h"
#include "tests/storyboard/Touches.h"

namespace {

// A gesture around the middle of the cover, and the expected scale and place afterwards.
struct ZoomGesture
{
    std::string name;
    Touches touches;
    double minimumScale = 1;
    double maximumScale = 1;
    QPointF center = {};
};

void PrintTo(const ZoomGesture& gesture, std::ostream* out)
{
    *out << gesture.name;
}

class ZoomTouchTest : public SceneTest, public testing::WithParamInterface<ZoomGesture>
{
};

TEST_P(ZoomTouchTest, TheCoverFollowsTheFingers)
{
    navigation().push(std::make_unique<ZoomViewController>());
    waitUntilStill();
    const auto& cover =
        *static_cast<ZoomViewController&>(*navigation().topViewController()).ZoomCollectionView;
    Fingers(*window, {200, 400}).play(GetParam().touches, [] {});
    EXPECT_GE(cover.scale(), GetParam().minimumScale);
    EXPECT_LE(cover.scale(), GetParam().maximumScale);
    EXPECT_EQ(cover.center(), GetParam().center);
}

const Touches spread = joined({{{0, 0, {-40, 0}, down}, {0, 1, {40, 0}, down}},
                               stroke(0, 0, {-40, 0}, {-120, 0}),
                               stroke(1, 0, {40, 0}, {120, 0})});

INSTANTIATE_TEST_SUITE_P(
    Zoom, ZoomTouchTest,
    testing::Values(
        ZoomGesture{"Drag",
                    joined({{{0, 0, {}, down}}, stroke(0, 0, {}, {50, 80}), {{110, 0, {50, 80}, up}}}),
                    1,
                    1,
                    {50, 80}},
        ZoomGesture{"DragOutOfTheWindow",
                    joined({{{0, 0, {}, down}}, stroke(0, 0, {}, {-260, 0}), {{110, 0, {-260, 0}, up}}}),
                    1,
                    1,
                    {-260, 0}},
        ZoomGesture{"Pinch", joined({spread, {{110, 0, {-120, 0}, up}, {110, 1, {120, 0}, up}}}), 1.5, 3.1},
        ZoomGesture{"PinchThenOneFingerLiftedAndTheOtherMoved",
                    joined({spread,
                            {{110, 0, {-120, 0}, up}},
                            stroke(1, 120, {120, 0}, {150, 0}),
                            {{230, 1, {150, 0}, up}}}),
                    1.5,
                    3.1,
                    {30, 0}},
        ZoomGesture{"PinchThenTheFirstFingerMoved",
                    joined({spread,
                            {{110, 1, {120, 0}, up}},
                            stroke(0, 120, {-120, 0}, {-120, 60}),
                            {{230, 0, {-120, 60}, up}}}),
                    1.5,
                    3.1,
                    {0, 60}},
        ZoomGesture{"DragThenASecondFinger",
                    joined({{{0, 0, {}, down}},
                            stroke(0, 0, {}, {60, 0}),
                            {{110, 1, {60, 100}, down}},
                            stroke(1, 120, {60, 100}, {60, 200}),
                            {{230, 1, {60, 200}, up}, {240, 0, {60, 0}, up}}}),
                    1.2,
                    3.1,
                    {60, 0}},
        ZoomGesture{"ThreeFingers",
                    joined({spread,
                            {{110, 2, {0, 100}, down}},
                            stroke(2, 120, {0, 100}, {0, 160}),
                            {{230, 2, {0, 160}, up}, {240, 0, {-120, 0}, up}, {250, 1, {120, 0}, up}}}),
                    1.5, 4}),
    [](const auto& info) { return info.param.name; });

} // namespace
