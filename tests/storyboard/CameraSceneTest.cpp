#include "editing/AddMovieViewController.h"
#include "tests/storyboard/SceneTest.h"

namespace {

class CameraSceneTest : public SceneTest
{
protected:
    AddMovieViewController& openedCamera()
    {
        device.setCameraAvailable(true);
        follow("AddMovie");
        auto& screen = static_cast<AddMovieViewController&>(*navigation().topViewController());
        screen.OpenFrontCamera();
        EXPECT_TRUE(waitFor(QAccessible::Button, "Take Photo"));
        return screen;
    }

    bool waitFor(QAccessible::Role role, const QString& name)
    {
        return QTest::qWaitFor([&] { return visible(role, name) != nullptr; });
    }

    bool waitUntilClosed()
    {
        return QTest::qWaitFor([&] { return visible(QAccessible::Button, "Take Photo") == nullptr; });
    }

    static QImage plain(const QColor& colour)
    {
        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(colour);
        return image;
    }

    // Invalid while that is still out of sight.
    QColor middleOfViewfinder()
    {
        const QPoint middle =
            window->mapFromGlobal(visible(QAccessible::Graphic, "Viewfinder")->rect().center());
        const QImage shown = window->grabWindow();
        return shown.valid(middle) ? shown.pixelColor(middle) : QColor();
    }
};

TEST_F(CameraSceneTest, TheSheetShowsWhatTheCameraSeesAndAKeyTakesIt)
{
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        const AddMovieViewController& screen = openedCamera();
        EXPECT_TRUE(waitFor(QAccessible::StaticText, "The camera gives no picture yet."));
        press(key);
        EXPECT_NE(screen.presentedViewController(), nullptr);
        device.letCameraTell(plain(Qt::red));
        device.letCameraTell(plain(Qt::green));
        EXPECT_EQ(visible(QAccessible::StaticText, "The camera gives no picture yet."), nullptr);
        EXPECT_TRUE(QTest::qWaitFor([&] { return middleOfViewfinder() == QColor(Qt::green); }));
        press(key);
        EXPECT_EQ(screen.FrontImageView->image(), plain(Qt::green));
        EXPECT_TRUE(waitUntilClosed());
        navigation().popToRoot();
        waitUntilStill();
    }
}

TEST_F(CameraSceneTest, EveryWayOutTurnsTheCameraOff)
{
    const std::vector<std::function<void()>> waysOut{
        [&] { press(Qt::Key_Escape); },
        [&] {
            visible(QAccessible::Button, "Cancel")
                ->actionInterface()
                ->doAction(QAccessibleActionInterface::pressAction());
        },
    };
    for (const auto& leave : waysOut) {
        const AddMovieViewController& screen = openedCamera();
        device.letCameraTell(NSError{"The camera is gone.", {}});
        EXPECT_TRUE(waitFor(QAccessible::StaticText, "The camera is gone."));
        leave();
        EXPECT_TRUE(waitUntilClosed());
        EXPECT_EQ(screen.presentedViewController(), nullptr);
        EXPECT_FALSE(device.isCameraOn());
        navigation().popToRoot();
        waitUntilStill();
    }
}

} // namespace
