#include "tests/summaries/GroupFixture.h"

namespace {

using GroupsTest = GroupTest;

TEST_F(GroupsTest, EachTabHasItsTextsAndSymbol)
{
    struct Case
    {
        Tab tab;
        QString placeholder, image;
    };
    const std::vector<Case> cases{
        {Genre, "Sort and Search By Genre", "book"},
        {Released, "Sort and Search By Release Date", "calendar.circle.fill"},
        {Watched, "Sort and Search By Date Watched", "calendar"},
        {Rating, "Sort and Search By Rating", "rectangle.and.pencil.and.ellipsis"},
        {Provider, "Sort and Search By Provider", "photo.tv"},
    };
    opened(Genre);
    for (const Case& expected : cases)
        EXPECT_EQ(tabs->item(expected.tab)->image(), expected.image) << "the first tab draws all symbols";
    for (const Case& expected : cases) {
        auto& screen = opened(expected.tab);
        EXPECT_EQ(screen.searchController->searchBar()->placeholder(), expected.placeholder);
        EXPECT_EQ(screen.SortButton->image(), "arrow.up.arrow.down");
    }
}

TEST_F(GroupsTest, OlderSystemsHaveNoSymbols)
{
    device.systemVersion = 12;
    device.setDark(true);
    given({.name = "a", .genre = "War"});
    auto& screen = opened(Genre);
    EXPECT_EQ(tabs->item(Genre)->image(), "");
    EXPECT_EQ(screen.SortButton->image(), "");
    EXPECT_EQ(screen.SortButton->title(), "Sort");
    EXPECT_EQ(screen.cellForRowAt({0}).value<GroupTableViewCell>().CountLabel.textColor, QColor(Qt::black));
}

TEST_F(GroupsTest, AYearEndsWithItsLastInstantHere)
{
    given({.name = "m", .watched = QDateTime(QDate(2021, 1, 1), QTime(4, 59, 59), Qt::UTC)});
    given({.name = "m", .watched = QDateTime(QDate(2021, 1, 1), QTime(5, 0), Qt::UTC)});
    EXPECT_EQ(rows(opened(Watched)), QStringList({"2020 1", "2021 1"}));
}

using GroupsDeathTest = GroupsTest;

TEST_F(GroupsDeathTest, MoreThanASixteenBitCountEndsTheProgram)
{
    const auto drawRow = [this] {
        for (int i = 0; i < 32768; ++i)
            context().insert<Movies>()->setGenre(QString("War"));
        (void)opened(Genre).cellForRowAt({0});
    };
    EXPECT_DEATH(drawRow(), "Fatal error: A group of 32768 movies");
}

TEST_F(GroupsDeathTest, ASummaryNeedsItsTabs)
{
    EXPECT_DEATH(navigation.push(std::make_unique<ProviderGroupTableViewController>()),
                 "no bar of five tabs");
    GenreGroupTableViewController unloaded;
    EXPECT_DEATH(unloaded.SortButtonTapped(), "SortAsc is absent");
}

} // namespace
