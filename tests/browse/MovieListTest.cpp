#include "browse/MainListTableViewController.h"
#include "model/SharedValues.h"
#include "platform/services/UIActivityViewController.h"
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
    movie->setProducers(QString("Carroll"));
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
    EXPECT_EQ(chosen.producers, "Carroll");
    EXPECT_EQ(chosen.notes, "scary");
    EXPECT_EQ(chosen.frontCover, QByteArray("cover"));
    EXPECT_EQ(chosen.provider, "");
    EXPECT_EQ(shared().ReturnScreen, "MainList");
}

TEST_F(MovieListTest, ASearchFollowsTheOrderAndSharesWhatItFinds)
{
    const auto alien =
        given({.name = "Alien", .genre = "Horror", .rating = "PG", .year = 1979, .runTime = 20});
    alien->setDirectors(QString("Scott"));
    alien->setProducers(QString("Carroll"));
    given({.name = "Twenty", .genre = "War", .rating = "R", .year = 2020, .runTime = 79});
    MainListTableViewController& list = opened();
    UIMenu& menu = *list.rightBarButtonItem()->menu();
    const std::tuple<int, const char*, const char*> cases[] = {
        {0, "TWE", "Twenty"}, {1, "hor", "Alien"}, {2, "20", "Twenty"}, {3, "pg", "Alien"}};
    for (const auto& [action, text, found] : cases) {
        menu.choose(action);
        list.searchController->searchBar()->setText(text);
        ASSERT_EQ(list.FilteredMovieList.size(), 1U) << text;
        EXPECT_EQ(list.FilteredMovieList.front()->movieName(), QString(found)) << text;
    }
    list.shareButtonClicked();
    const auto* sheet = qobject_cast<UIActivityViewController*>(list.presentedViewController());
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(std::get<QString>(sheet->activityItems().front()),
              "Movie Name: Alien\nYear Released: 1979\nRun Time: 20\nRating: PG\nGenre: Horror\n"
              "Director: Scott\n\n\n");
    list.SortMoviesTapped();
    EXPECT_EQ(list.FilteredMovieList.size(), 2U) << "a sort fills the list that the search had narrowed";
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

TEST_F(MovieListTest, ASwipeDeletesTheMovieThatTheSearchShows)
{
    given({.name = "Alien"});
    given({.name = "Brazil"});
    given({.name = "Clue"});
    MainListTableViewController& list = opened();
    list.searchController->searchBar()->setText("brazil");
    UITableView& table = *list.tableView();
    table.performSwipeAction(table.swipeActions(table.rowKey(0)), 0);
    ASSERT_EQ(storedMovies().size(), 2U);
    EXPECT_EQ(storedMovies().back()->movieName(), QString("Clue"));
}

} // namespace
