#include "model/SharedValues.h"
#include "tests/summaries/GroupFixture.h"

namespace {

using GroupsTest = GroupTest;

TEST_F(GroupsTest, EachTabHasItsTextsAndSymbol)
{
    struct Case
    {
        Tab tab;
        QString placeholder, header, image;
    };
    const std::vector<Case> cases{
        {Genre, "Sort and Search By Genre", "# Genre's = 0", "book"},
        {Released, "Sort and Search By Release Date", "# Year's = 0", "calendar.circle.fill"},
        {Watched, "Sort and Search By Date Watched", "# Dates Watched = 0", "calendar"},
        {Rating, "Sort and Search By Rating", "# Ratings = 0", "rectangle.and.pencil.and.ellipsis"},
        {Provider, "Sort and Search By Provider", "# Genre's = 0", "photo.tv"},
    };
    opened(Genre);
    for (const Case& expected : cases)
        EXPECT_EQ(tabs->item(expected.tab)->image(), expected.image) << "the first tab draws all symbols";
    for (const Case& expected : cases) {
        auto& screen = opened(expected.tab);
        EXPECT_EQ(screen.searchController->searchBar()->placeholder(), expected.placeholder);
        EXPECT_EQ(header(screen), expected.header);
        EXPECT_EQ(screen.SortButton->image(), "arrow.up.arrow.down");
        EXPECT_EQ(screen.heightForRowAt({}), 60);
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

TEST_F(GroupsTest, TextsStandInTheOrderOfCodePointsAndDatesInThatOfTime)
{
    const auto watched = [](int year, int month) { return QDateTime(QDate(year, month, 5), QTime(12, 0)); };
    given({.name = "a", .genre = "war", .year = 999, .watched = watched(2021, 3)});
    given({.name = "b", .genre = "War", .year = 2019, .watched = watched(2021, 1)});
    given({.name = "c", .genre = "", .year = 1999, .watched = watched(2020, 12)});
    given({.name = "d", .genre = "Zed", .year = 1000});
    struct Case
    {
        Tab tab;
        QStringList rows;
        QString search;
        QStringList foundDownwards;
    };
    const Case cases[] = {
        {Genre, {" 1", "War 1", "Zed 1", "war 1"}, "WAR", {"war 1", "War 1"}},
        {Released, {"999 1", "1000 1", "1999 1", "2019 1"}, "9", {"2019 1", "1999 1", "999 1"}},
        {Watched, {"2020 1", "2021 2", "2021 2"}, "2021-", {"2021 2", "2021 2"}},
    };
    for (const auto& [tab, all, text, foundDownwards] : cases) {
        auto& screen = opened(tab);
        EXPECT_EQ(rows(screen), all);
        screen.searchController->searchBar()->setText(text);
        screen.SortButtonTapped();
        EXPECT_EQ(rows(screen), foundDownwards);
        screen.tableView()->select(0);
    }
    EXPECT_EQ(shared().CurrentMovie.genre, "war");
    EXPECT_EQ(shared().CurrentMovie.yearReleased, 2019);
    EXPECT_EQ(shared().SelectedMonth, 3);
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
