#include "tests/summaries/BreakdownFixture.h"

namespace {

struct BreakdownMember
{
    QString first, second, returnScreen, unwindAction;
    std::unique_ptr<BreakdownTableViewController> (*make)();
    bool staysDark;
};

void PrintTo(const BreakdownMember& member, std::ostream* out)
{
    *out << member.returnScreen.toStdString();
}

template <typename Screen>
std::unique_ptr<BreakdownTableViewController> makeBreakdown()
{
    return std::make_unique<Screen>();
}

const BreakdownMember breakdownMembers[] = {
    {"Genre: Horror", " Alien   Year: 1979  Run Time: 117 min.", "GenreBreakdown",
     "unwindToGenreBreakdownTableViewWithSegue", makeBreakdown<GenreBreakdownTableViewController>, false},
    {"Year Released: 1979", " Alien   Genre: Horror  Run Time: 117 min.", "DateReleasedBreakdown",
     "unwindToDateReleasedBreakdownTableViewWithSegue",
     makeBreakdown<DateReleasedBreakdownTableViewController>, false},
    {"Date Watched: March 5, 2021", " Alien   Genre: Horror  Run Time: 117 min.", "DateWatchedBreakdown",
     "unwindToDateWatchedBreakdownTableViewWithSegue", makeBreakdown<DateWatchedBreakdownTableViewController>,
     false},
    {"Rating: R", " Alien   Year: 1979  Run Time: 117 min.", "RatingBreakdown",
     "unwindToRatingBreakdownTableViewWithSegue", makeBreakdown<RatingBreakdownTableViewController>, false},
    {"Provider: Netflix  Genre: Horror", " Alien   Year: 1979  Run Time: 117 min.", "ProviderBreakdown",
     "unwindToProviderBreakdownTableViewWithSegue", makeBreakdown<ProviderBreakdownTableViewController>,
     true},
};

class EveryBreakdown : public BreakdownTest, public testing::WithParamInterface<BreakdownMember>
{
};

TEST_P(EveryBreakdown, ListsItsGroupAndComesBackToIt)
{
    const auto movie = alien();
    given({.name = "Other", .genre = "horror", .rating = "r", .year = 1980});
    chooseGroupsOfAlien();
    device.setDark(true);
    navigation.push(GetParam().make());
    auto& screen = static_cast<BreakdownTableViewController&>(*navigation.topViewController());
    ASSERT_EQ(names(screen.MovieList), QStringList("Alien"));
    EXPECT_EQ(screen.MovieCount, 1);
    const MovieTableViewCell row = cell(screen, 0);
    EXPECT_EQ(row.MovieNameLabel.text, GetParam().first);
    EXPECT_EQ(row.SecondLabel.text, GetParam().second);
    EXPECT_EQ(row.ThirdLabel.text, "Actors: Ann,Bob,") << "one trailing comma goes";
    EXPECT_EQ(row.ThirdLabel.textColor, GetParam().staysDark ? QColor() : QColor(Qt::black));
    EXPECT_FALSE(row.FrontImage.isNull());

    screen.tableView()->select(0);
    screen.performSegue("EditMovie");
    EXPECT_EQ(shared().ReturnScreen, GetParam().returnScreen);
    EXPECT_EQ(shared().CurrentMovie.notes, "") << "notes are not copied";
    EXPECT_EQ(shared().CurrentMovie.producers, "Ed, Flo");
    context().deleteObject(movie);
    EXPECT_TRUE(context().save().ok());
    navigation.topViewController()->performSegue(QString(GetParam().unwindAction).remove("WithSegue"));
    EXPECT_EQ(navigation.topViewController(), &screen);
    EXPECT_EQ(header(screen), "# Movies = 0");
}

INSTANTIATE_TEST_SUITE_P(Summaries, EveryBreakdown, testing::ValuesIn(breakdownMembers),
                         [](const auto& info) { return info.param.returnScreen.toStdString(); });

TEST_F(BreakdownTest, ASearchKeepsItsOrderUntilItsTextChanges)
{
    for (const char* name : {"The Thing", "Other People", "Alien"})
        given({.name = name, .genre = "Horror"});
    given({.name = std::nullopt, .genre = "Horror"});
    shared().CurrentMovie.genre = "Horror";
    shared().GlobalSortAsc = false;
    auto& screen = opened<GenreBreakdownTableViewController>();
    EXPECT_TRUE(shared().GlobalSortAsc);
    EXPECT_EQ(screen.title(), "Horror");
    EXPECT_EQ(names(screen.MovieList), QStringList({"-", "Alien", "Other People", "The Thing"}));
    search(screen, "THE");
    EXPECT_EQ(header(screen), "# Movies = 2");
    screen.SortButtonTapped();
    EXPECT_FALSE(shared().GlobalSortAsc);
    EXPECT_EQ(names(screen.MovieList).front(), "The Thing");
    EXPECT_EQ(names(screen.FilteredMovieList), QStringList({"Other People", "The Thing"}));
    search(screen, "the");
    EXPECT_EQ(names(screen.FilteredMovieList), QStringList({"The Thing", "Other People"}));
    search(screen, "");
    EXPECT_EQ(header(screen), "# Movies = 4");
}

TEST_F(BreakdownTest, NegativeNumbersAreHandedOnAsMinusOne)
{
    given({.name = "a", .genre = "War", .year = -32768, .runTime = -2});
    shared().CurrentMovie.genre = "War";
    auto& screen = opened<GenreBreakdownTableViewController>();
    EXPECT_EQ(cell(screen, 0).SecondLabel.text, " a   Year: -32768  Run Time: -2 min.");
    screen.tableView()->select(0);
    EXPECT_EQ(shared().CurrentMovie.yearReleased, -1);
    EXPECT_EQ(shared().CurrentMovie.runTime, -1);
}

using BreakdownDeathTest = BreakdownTest;

TEST_F(BreakdownDeathTest, AMonthMustBeChosen)
{
    shared().SelectedYear.reset();
    EXPECT_DEATH(opened<DateWatchedBreakdownTableViewController>(), "Fatal error: SelectedYear is absent");
}

} // namespace
