#include "browse/MainListTableViewController.h"
#include "browse/MovieListRow.h"
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

    static QStringList namesShown(MainListTableViewController& list)
    {
        const auto& movies =
            list.searchController->searchBar()->text().isEmpty() ? list.MovieList : list.FilteredMovieList;
        QStringList names;
        for (const auto& movie : movies)
            names.append(movie->movieName().value_or("-"));
        return names;
    }

    static MainListTableViewCell cell(MainListTableViewController& list, int row)
    {
        return list.cellForRowAt({row}).value<MainListTableViewCell>();
    }

    static void choose(MainListTableViewController& list, const QString& action)
    {
        UIMenu& menu = *list.rightBarButtonItem()->menu();
        menu.choose(static_cast<int>(menu.actionTitles().indexOf(action)));
    }

    static void search(MainListTableViewController& list, const QString& text)
    {
        list.searchController->searchBar()->setText(text);
    }

    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
};

TEST_F(MovieListTest, EverySortRunAndEveryAppearanceTurnsTheDirection)
{
    given({.name = "b", .genre = "War", .rating = "R", .year = 1999});
    given({.name = "a", .genre = "War", .rating = "G", .year = 2001});
    given({.name = "c", .genre = "Epic", .rating = "R", .year = 1999});
    MainListTableViewController& list = opened();
    EXPECT_EQ(namesShown(list), QStringList({"c", "b", "a"})) << "the first list runs downwards";
    EXPECT_EQ(list.SortAsc, true) << "the appearance turned the direction back";

    const std::vector<std::pair<QString, QStringList>> steps{
        {"By Genre", {"b", "a", "c"}},  {"By Genre", {"c", "a", "b"}},      {"By Year", {"a", "c", "b"}},
        {"By Rating", {"a", "b", "c"}}, {"By Movie Name", {"c", "b", "a"}},
    };
    testing::internal::CaptureStdout();
    for (const auto& [action, names] : steps) {
        choose(list, action);
        EXPECT_EQ(namesShown(list), names) << qPrintable(action);
        EXPECT_EQ(list.searchController->searchBar()->placeholder(),
                  QString("Search " + action).replace("By", "by"));
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Option 2 selected\nOption 2 selected\nOption 3 selected\n"
              "Option 4 selected\nOption 1 selected\n");
    list.SortMoviesTapped();
    EXPECT_EQ(namesShown(list), QStringList({"a", "b", "c"})) << "the sort button keeps the key";

    list.performSegue("AddMovie");
    given({.name = "d"});
    navigation.pop();
    EXPECT_EQ(list.SortAsc, false);
    EXPECT_EQ(list.MovieList.size(), 3U) << "an appearance doesn't fetch";
    list.SortMoviesTapped();
    EXPECT_EQ(namesShown(list), QStringList({"a", "b", "c", "d"}));
}

TEST_F(MovieListTest, RowsTellWhatTheSortKeyAsksFor)
{
    const QString watched = QString::fromUtf8("Date Watched: March 5, 2021 Run Time: 117");
    given(
        {.name = "Alien", .genre = "Horror", .rating = "R", .year = 1979, .runTime = 117, .watched = march5});
    MainListTableViewController& list = opened();
    struct Case
    {
        QString action, first, second, third;
    };
    const std::vector<Case> cases{
        {"By Movie Name", "Movie Name: Alien", "Date Released: 1979 Genre: Horror Rating: R",
         watched + " min"},
        {"By Genre", "Genre: Horror", "Movie Name: Alien Rating: R", watched},
        {"By Year", "Year Released: 1979", "Movie Name: Alien Rating: R", watched},
        {"By Rating", "Rating: R", "Movie Name: Alien Year Released: 1979", watched},
    };
    for (const Case& expected : cases) {
        choose(list, expected.action);
        const MainListTableViewCell row = cell(list, 0);
        EXPECT_EQ(row.MovieNameLabel.text, expected.first);
        EXPECT_EQ(row.SecondLabel.text, expected.second);
        EXPECT_EQ(row.ThirdLabel.text, expected.third);
    }
}

TEST_F(MovieListTest, AbsentValuesShowAsEmptyText)
{
    given({.name = std::nullopt});
    device.setDark(true);
    MainListTableViewController& list = opened();
    const MainListTableViewCell row = cell(list, 0);
    EXPECT_EQ(row.MovieNameLabel.text, "Movie Name: ");
    EXPECT_EQ(row.SecondLabel.text, "Date Released: 0 Genre:  Rating: ");
    EXPECT_EQ(row.ThirdLabel.text, "Date Watched: N/A  Run Time: 0");
    EXPECT_FALSE(row.FrontImage.isNull()) << "the built-in picture stands in for the cover";
    EXPECT_EQ(row.ThirdLabel.textColor, QColor(Qt::black)) << "rows stay light in dark style";
}

TEST_F(MovieListTest, SearchFollowsTheKeyAndIgnoresCase)
{
    given({.name = "The Thing", .genre = "Horror", .year = 1982});
    given({.name = "Other People", .genre = QString::fromUtf8("ÉPIQUE"), .rating = "PG", .year = 1920});
    given({.name = "Alien", .genre = "Horror", .rating = "R", .year = 2019});
    given({.name = std::nullopt, .genre = "", .year = 2001});
    MainListTableViewController& list = opened();
    const auto header = [&] { return list.viewForHeaderInSection(0)->text; };
    EXPECT_EQ(header(), "# Movies = 4");

    struct Case
    {
        QString action, text;
        QStringList names;
    };
    const std::vector<Case> cases{
        {"By Movie Name", "THE", {"The Thing", "Other People"}},
        {"By Genre", QString::fromUtf8("épi"), {"Other People"}},
        {"By Year", "20", {"Other People", "-", "Alien"}},
        {"By Rating", "pg", {"Other People"}},
        {"By Rating", "absent", {}},
    };
    for (const Case& example : cases) {
        search(list, {});
        while (list.SortName != QString(example.action).remove("By ").remove(' ') ||
               list.SortAsc != (example.action != "By Movie Name"))
            choose(list, example.action);
        search(list, example.text);
        EXPECT_EQ(namesShown(list), example.names) << qPrintable(example.text);
        EXPECT_EQ(header(), QString("# Movies = %1 of 4").arg(example.names.size()));
        EXPECT_EQ(list.tableView()->rowCount(), example.names.size());
    }
    search(list, {});
    EXPECT_EQ(list.tableView()->rowCount(), 4);
}

TEST_F(MovieListTest, ASwipeDeletesFromTheStoreAndFromTheShownListAlone)
{
    given({.name = "Alien"});
    given({.name = "Aliens"});
    given({.name = "Brazil"});
    MainListTableViewController& list = opened();
    search(list, "alien");
    ASSERT_EQ(list.tableView()->swipeActions(list.tableView()->rowKey(0)).titles, QStringList("delete"));
    list.tableView()->performSwipeAction(list.tableView()->swipeActions(list.tableView()->rowKey(0)), 0);

    EXPECT_EQ(namesShown(list), QStringList("Alien"));
    EXPECT_EQ(list.viewForHeaderInSection(0)->text, "# Movies = 1 of 3")
        << "the whole list still holds the record";
    EXPECT_EQ(storedMovies().size(), 2U);
    EXPECT_FALSE(context().hasChanges());

    list.commitEditingStyle(UITableView::EditingStyle::Delete, {0});
    EXPECT_EQ(storedMovies().size(), 2U) << "the table's own edit touches no data";
    search(list, {});
    list.SortMoviesTapped();
    EXPECT_EQ(namesShown(list).size(), 2);
}

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

TEST_F(MovieListTest, SharingIsGatedByTextMessagesAndListsWhatIsShown)
{
    const auto movie = given({.name = "Alien", .genre = "Horror", .year = 1979, .runTime = 117});
    movie->setActors(QString("Weaver\nHolm"));
    movie->setProducers(QString("not shared"));
    given({.name = "Brazil"});
    MainListTableViewController& list = opened();

    device.setCanSendText(false);
    list.shareButtonClicked();
    EXPECT_EQ(list.presentedViewController(), nullptr) << "the alert waits for its turn";
    queue.advance({});
    auto* alert = qobject_cast<UIAlertController*>(list.presentedViewController());
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->title(), "Can't Send Text Message");
    EXPECT_EQ(alert->message(), "Your device is not able to send text messages.");
    alert->choose(0);

    device.setCanSendText(true);
    search(list, "alien");
    list.shareButtonClicked();
    auto* sheet = qobject_cast<UIActivityViewController*>(list.presentedViewController());
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(
        std::get<QString>(sheet->activityItems().front()),
        "Movie Name: Alien\nYear Released: 1979\nRun Time: 117\nGenre: Horror\nActor's: Weaver\nHolm\n\n\n");
}

TEST_F(MovieListTest, OlderSystemsShowTitlesAndAPlainMenuButton)
{
    given({.name = "a"});
    given({.name = "b"});
    device.systemVersion = 12;
    MainListTableViewController& list = opened();
    EXPECT_EQ(list.SortButton->image(), "");
    EXPECT_EQ(list.SortButton->title(), "Sort");
    EXPECT_EQ(list.rightBarButtonItem()->title(), "Menu");
    EXPECT_EQ(list.rightBarButtonItem()->menu(), nullptr);
    list.rightBarButtonItem()->tap();
    EXPECT_EQ(list.SortName, QString("MovieName"));
    EXPECT_EQ(namesShown(list), QStringList({"b", "a"}));
}

} // namespace
