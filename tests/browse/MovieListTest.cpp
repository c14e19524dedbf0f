#include "browse/MainListTableViewController.h"
#include "model/SharedValues.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UINavigationController.h"
#include "tests/support/Catalogue.h"
#include "tests/support/PlainStoryboard.h"

namespace {

const QDateTime march5(QDate(2021, 3, 5), QTime(20, 15), Qt::UTC);

class MovieListTest : public CatalogueTest
{
protected:
    MainListTableViewController& opened()
    {
        navigation.push(std::make_unique<MainListTableViewController>());
        return static_cast<MainListTableViewController&>(*navigation.topViewController());
    }

    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
};

TEST_F(MovieListTest, ATapCopiesTheWholeMovieAndOpensTheEditor)
{
    const auto movie = given(
        {.name = "Alien", .genre = "Horror", .rating = "R", .year = 1979, .runTime = 117, .watched = march5});
    movie->setNotes(QString("scary"));
    movie->setFrontCover(QByteArray("cover"));
    MainListTableViewController& list = opened();
    list.tableView()->select(0);
    const MovieFields& chosen = shared().CurrentMovie;
    EXPECT_EQ(chosen.movieName, "Alien");
    EXPECT_EQ(chosen.genre, "Horror");
    EXPECT_EQ(chosen.rating, "R");
    EXPECT_EQ(chosen.yearReleased, 1979);
    EXPECT_EQ(chosen.runTime, 117);
    EXPECT_EQ(chosen.dateWatched, march5);
    EXPECT_EQ(chosen.notes, "scary");
    EXPECT_EQ(chosen.frontCover, QByteArray("cover"));
    EXPECT_EQ(chosen.provider, "");
    EXPECT_EQ(shared().ReturnScreen, "MainList");
}

TEST_F(MovieListTest, SharingNeedsADeviceThatSendsTexts)
{
    MainListTableViewController& list = opened();
    device.setCanSendText(false);
    list.shareButtonClicked();
    EXPECT_EQ(list.presentedViewController(), nullptr) << "the alert waits for its turn";
    queue.advance({});
    auto* alert = qobject_cast<UIAlertController*>(list.presentedViewController());
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->title(), "Can't Send Text Message");
    EXPECT_EQ(alert->message(), "Your device is not able to send text messages.");
}

TEST_F(MovieListTest, OlderSystemsShowTitlesAndAPlainMenuButton)
{
    device.systemVersion = 12;
    MainListTableViewController& list = opened();
    EXPECT_EQ(list.SortButton->image(), "");
    EXPECT_EQ(list.SortButton->title(), "Sort");
    EXPECT_EQ(list.rightBarButtonItem()->title(), "Menu");
    EXPECT_EQ(list.rightBarButtonItem()->menu(), nullptr);
    list.rightBarButtonItem()->tap();
    EXPECT_EQ(list.SortName, QString("MovieName"));
}

} // namespace
