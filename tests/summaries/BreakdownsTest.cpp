#include "tests/summaries/BreakdownFixture.h"

namespace {

TEST_F(BreakdownTest, HandsNegativeNumbersOnAsMinusOneAndNoNotes)
{
    given({.name = "a", .genre = "War", .year = -32768, .runTime = -2})->setNotes(QString("scary"));
    shared().CurrentMovie.genre = "War";
    auto& screen = opened<GenreBreakdownTableViewController>();
    screen.tableView()->select(0);
    EXPECT_EQ(shared().CurrentMovie.yearReleased, -1);
    EXPECT_EQ(shared().CurrentMovie.runTime, -1);
    EXPECT_EQ(shared().CurrentMovie.notes, "");
}

using BreakdownDeathTest = BreakdownTest;

TEST_F(BreakdownDeathTest, AMonthMustBeChosen)
{
    shared().SelectedYear.reset();
    EXPECT_DEATH(opened<DateWatchedBreakdownTableViewController>(), "Fatal error: SelectedYear is absent");
}

} // namespace
