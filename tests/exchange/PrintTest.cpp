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
        for (const char* name : {"b", "a", "c"}) {
            const auto movie = given({.name = name, .genre = "War", .rating = "R", .year = 1999});
            movie->setProvider(QString("DVD"));
            movie->setWYear(2021);
            movie->setWMonth(3);
        }
        given({.name = "other", .genre = "war", .rating = "G", .year = 2000});
        EXPECT_TRUE(context().save().ok());
        MovieFields& chosen = shared().CurrentMovie;
        chosen.provider = "DVD";
        chosen.genre = "War";
        chosen.rating = "R";
        chosen.yearReleased = 1999;
        shared().SelectedYear = 2021;
        shared().SelectedMonth = 3;
        shared().GlobalSortAsc = true;
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

    // The titles in the text, in order, after what stands before the first.
    static QString outline(const PrintMoviesViewController& screen)
    {
        QStringList titles;
        const QStringList blocks = screen.FileTextView->text().split("Movie Name: ");
        for (const QString& block : blocks)
            titles.append(block.section('\n', 0, 0));
        return titles.join(",");
    }

    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
};

TEST_F(PrintTest, TheCallerSaysWhatIsPrinted)
{
    const std::pair<const char*, const char*> cases[] = {
        {"MainMenu", ",a,b,c,other"},        {"GenreBreakdown", "Movies Filtered by Genre: War,a,b,c"},
        {"DateReleasedBreakdown", ",a,b,c"}, {"DateWatchedBreakdown", ",a,b,c"},
        {"RatingBreakdown", ",a,b,c"},       {"ProviderBreakdown", ",a,b,c"},
    };
    for (const auto& [caller, expected] : cases) {
        auto& screen = openedFrom(caller);
        EXPECT_EQ(screen.FileTextView->text(), "");
        screen.CreateFileClick();
        EXPECT_EQ(outline(screen), expected) << caller;
        EXPECT_EQ(screen.i, screen.MovieList.size());
        navigation.pop();
    }
    shared().GlobalSortAsc = false;
    auto& screen = openedFrom("RatingBreakdown");
    screen.CreateFileClick();
    EXPECT_EQ(outline(screen), ",c,b,a");
}

TEST_F(PrintTest, APressAgainAddsEverythingAgain)
{
    auto& screen = openedFrom("GenreBreakdown");
    screen.CreateFileClick();
    const QString once = screen.FileTextView->text();
    EXPECT_EQ(screen.MovieString.runs().front().style.fontSize, 21);
    screen.CreateFileClick();
    EXPECT_EQ(screen.FileTextView->text(), once + once);
    EXPECT_EQ(screen.i, 6);
    const auto& first = screen.MovieString.runs().front();
    EXPECT_TRUE(first.text.startsWith(once)) << "what stood there became one title";
    EXPECT_EQ(first.style.fontSize, 21);
    EXPECT_FALSE(first.attachment);
}

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
