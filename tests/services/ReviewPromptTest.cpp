#include "platform/services/LinuxReviewPrompt.h"
#include "platform/services/SKStoreReviewController.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UINavigationController.h"
#include "platform/toolkit/UITextField.h"
#include "platform/toolkit/UIWindowScene.h"
#include "tests/support/PlainStoryboard.h"
#include "tests/support/RecordingDevice.h"

#include <gtest/gtest.h>

namespace {

class Window : public UIWindowScene
{
public:
    [[nodiscard]] ActivationState activationState() const override
    {
        return ActivationState::ForegroundActive;
    }
    [[nodiscard]] UINavigationController& navigationController() override { return navigation; }

private:
    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
};

class ReviewPromptTest : public testing::Test
{
protected:
    ReviewPromptTest() { device.reviewPrompt = std::make_unique<LinuxReviewPrompt>(); }

    static UIViewController& show(Window& window)
    {
        window.navigationController().push(std::make_unique<UIViewController>());
        return *window.navigationController().topViewController();
    }

    static UIAlertController* alertOn(const UIViewController& screen)
    {
        return qobject_cast<UIAlertController*>(screen.presentedViewController());
    }

    RecordingDevice device;
};

TEST_F(ReviewPromptTest, AsksOnTopOfTheWindowsScreen)
{
    SKStoreReviewController::requestReview();
    Window first;
    Window second;
    SKStoreReviewController::requestReviewInScene(second);
    UIViewController& screen = show(first);
    UIViewController& other = show(second);
    SKStoreReviewController::requestReview();
    ASSERT_NE(alertOn(screen), nullptr);
    EXPECT_EQ(alertOn(screen)->title(), "Enjoying Marrowvale?");
    EXPECT_EQ(alertOn(screen)->actionTitles(), QStringList({"Write a Review", "Not Now"}));
    EXPECT_EQ(alertOn(other), nullptr);
    SKStoreReviewController::requestReviewInScene(second);
    EXPECT_NE(alertOn(other), nullptr);
}

TEST_F(ReviewPromptTest, OpensTheReviewPageOnlyWhenToldTo)
{
    Window window;
    const UIViewController& screen = show(window);
    for (const bool can : {true, false}) {
        device.addressOpenerTwin->can = can;
        device.addressOpenerTwin->opened.clear();
        SKStoreReviewController::requestReview();
        alertOn(screen)->choose(alertOn(screen)->cancelIndex());
        EXPECT_EQ(device.addressOpenerTwin->opened, QList<QUrl>());
        EXPECT_EQ(alertOn(screen), nullptr);
        SKStoreReviewController::requestReview();
        alertOn(screen)->choose(0);
        EXPECT_EQ(device.addressOpenerTwin->opened, QList<QUrl>{QUrl("https://marrowvale.example/review")});
        EXPECT_EQ(alertOn(screen) != nullptr, !can) << "a page that can't be opened is told";
    }
}

TEST_F(ReviewPromptTest, DisturbsNeitherAnAlertNorTyping)
{
    Window window;
    UIViewController& screen = show(window);
    auto* field = new UITextField(&screen);
    field->becomeFirstResponder();
    SKStoreReviewController::requestReview();
    EXPECT_EQ(alertOn(screen), nullptr);
    screen.endEditing();
    screen.present(UIAlertController::withOk("Movie Saved", ""));
    SKStoreReviewController::requestReview();
    EXPECT_EQ(alertOn(screen)->title(), "Movie Saved");
    EXPECT_EQ(alertOn(screen)->presentedViewController(), nullptr);
}

} // namespace
