#include "exchange/PrintMoviesViewController.h"
#include "model/SharedValues.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UINavigationController.h"
#include "tests/support/Catalogue.h"
#include "tests/support/PlainStoryboard.h"

namespace {

class PrintTest : public CatalogueTest
{
protected:
    void SetUp() override
    {
        for (const char* name : {"b", "a", "c"})
            given({.name = name, .genre = "War"});
        shared().CurrentMovie.genre = "War";
        navigation.push(std::make_unique<UIViewController>());
    }

    // A job under way would go on into the next test.
    void TearDown() override { navigation.popToRoot(); }

    PrintMoviesViewController& openedFrom(const QString& returnScreen)
    {
        shared().ReturnScreen = returnScreen;
        navigation.push(std::make_unique<PrintMoviesViewController>());
        return static_cast<PrintMoviesViewController&>(*navigation.topViewController());
    }

    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
};

TEST_F(PrintTest, ThePrinterGetsTheTextShownAndTheConsoleTheOutcome)
{
    auto& screen = openedFrom("MainMenu");
    screen.EmailFileClick();
    ASSERT_EQ(device.printerTwin->printed.size(), 1U);
    EXPECT_TRUE(device.printerTwin->printed.front().showsNumberOfCopies);
    const auto outcome = [&](bool completed, const std::optional<NSError>& error) {
        EXPECT_TRUE(screen.activityIndicator->isAnimating());
        testing::internal::CaptureStdout();
        std::exchange(device.printerTwin->told, nullptr)(completed, error);
        EXPECT_FALSE(screen.activityIndicator->isAnimating());
        screen.EmailFileClick();
        return testing::internal::GetCapturedStdout();
    };
    EXPECT_EQ(outcome(true, std::nullopt), "Image is Printed\n");
    EXPECT_EQ(outcome(false, std::nullopt), "nil\n");
    EXPECT_EQ(outcome(false, NSError{"jam", {}}), "");
    navigation.pop();
    EXPECT_EQ(device.printerTwin->told, nullptr) << "the dialog goes with the screen";
}

TEST_F(PrintTest, APressAgainTurnsWhatStoodThereIntoOneTitle)
{
    auto& screen = openedFrom("MainMenu");
    screen.CreateFileClick();
    screen.CreateFileClick();
    EXPECT_EQ(screen.MovieString.runs().front().style.fontSize, 21);
}

TEST_F(PrintTest, NothingToPrintIsSaidAtOnceAndAgain)
{
    shared().CurrentMovie.genre = "Musical";
    auto& screen = openedFrom("GenreBreakdown");
    for (int time = 0; time < 2; ++time) {
        auto* alert = qobject_cast<UIAlertController*>(screen.presentedViewController());
        ASSERT_NE(alert, nullptr);
        EXPECT_EQ(alert->title() + "/" + alert->message(), "Empty Data Set!/No Movies to Print!");
        alert->choose(0);
        screen.CreateFileClick();
    }
    EXPECT_TRUE(screen.PrintButton->isHidden());
    EXPECT_TRUE(device.printerTwin->printed.empty());
    auto& unknown = openedFrom("MainList");
    EXPECT_EQ(unknown.presentedViewController(), nullptr) << "no caller that prints, and nothing is said";
    unknown.CreateFileClick();
    EXPECT_NE(unknown.presentedViewController(), nullptr);
}

} // namespace
