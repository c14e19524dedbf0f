#include "model/SharedValues.h"
#include "tests/summaries/GroupFixture.h"

namespace {

class GroupsTest : public GroupTest
{
};

TEST_F(GroupsTest, TextsGroupExactlyAndSortByCodePoint)
{
    for (const char* provider :
         {"Netflix", "netflix", "Zed", "apple", "Netflix", "", "\xEF\xBD\xA1", "\xF0\x9F\x98\x80"})
        shownBy(QString(provider));
    shownBy(std::nullopt);
    auto& screen = opened<ProviderGroupTableViewController>(Provider);
    const QStringList ascending{" 1",        "Netflix 2", "Zed 1",       "apple 1",
                                "netflix 1", "\uFF61 1",  "\U0001F600 1"};
    EXPECT_EQ(rows(screen), ascending);
    EXPECT_EQ(header(screen), "# Genre's = 7");
    screen.SortButtonTapped();
    EXPECT_EQ(rows(screen), QStringList(ascending.crbegin(), ascending.crend()));
    EXPECT_FALSE(shared().GlobalSortAsc);

    search(screen, "NET");
    EXPECT_EQ(screen.FilteredProviderList, QStringList({"netflix", "Netflix"})) << "never the empty one";
    EXPECT_EQ(header(screen), "# Genre's = 2");
    screen.SortButtonTapped();
    EXPECT_EQ(rows(screen), QStringList({"Netflix 2", "netflix 1"}));
    screen.tableView()->select(1);
    EXPECT_EQ(shared().CurrentMovie.provider, "netflix");
    search(screen, "");
    EXPECT_EQ(screen.ProviderList.front(), "\U0001F600") << "the full list kept its order";
}

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

TEST_F(GroupsTest, YearsStayInTheOrderOfNumbers)
{
    for (const int year : {1999, 2019, -32768, 32767, 1999, 0, 1990})
        given({.name = "m", .year = static_cast<qint16>(year)});
    auto& screen = opened<DateReleasedGroupTableViewController>(Released);
    EXPECT_EQ(rows(screen), QStringList({"-32768 1", "0 1", "1990 1", "1999 2", "2019 1", "32767 1"}));
    EXPECT_EQ(screen.DateList.front(), "-32768");
    search(screen, "19");
    EXPECT_EQ(rows(screen), QStringList({"1990 1", "1999 2", "2019 1"}));
    screen.SortButtonTapped();
    EXPECT_EQ(rows(screen), QStringList({"2019 1", "1999 2", "1990 1"}));
    screen.tableView()->select(1);
    EXPECT_EQ(shared().CurrentMovie.yearReleased, 1999);
}

TEST_F(GroupsTest, MonthsAreRowsThatTellAndCountTheirYear)
{
    for (const QDateTime& date : {noon(2021, 3, 5), noon(2021, 1, 31), noon(2020, 12, 31), noon(2021, 3, 9),
                                  noon(1899, 7, 1), noon(2150, 2, 1)})
        given({.name = "m", .watched = date});
    given({.name = "never watched"});
    auto& screen = opened<DateWatchedGroupTableViewController>(Watched);
    EXPECT_EQ(rows(screen), QStringList({"1899 1", "2020 1", "2021 3", "2021 3", "2150 1"}));
    EXPECT_EQ(screen.DateList,
              QStringList({"1899 July", "2020 December", "2021 January", "2021 March", "2150 February"}));
    EXPECT_EQ(header(screen), "# Dates Watched = 5");

    screen.tableView()->select(3);
    EXPECT_EQ(shared().SelectedYear, 2021);
    EXPECT_EQ(shared().SelectedMonth, 3);
    search(screen, "2021-");
    EXPECT_EQ(rows(screen).size(), 2);
    screen.SortButtonTapped();
    screen.tableView()->select(0);
    EXPECT_EQ(shared().SelectedMonth, 3) << "the later month comes first now";
    search(screen, "2150-02-01 17:00:00 +0000");
    EXPECT_EQ(rows(screen), QStringList("2150 1")) << "noon in New York";
}

TEST_F(GroupsTest, AYearEndsWithItsLastInstantHere)
{
    given({.name = "m", .watched = QDateTime(QDate(2021, 1, 1), QTime(4, 59, 59), Qt::UTC)});
    given({.name = "m", .watched = QDateTime(QDate(2021, 1, 1), QTime(5, 0), Qt::UTC)});
    EXPECT_EQ(rows(opened(Watched)), QStringList({"2020 1", "2021 1"}));
}

TEST_F(GroupsTest, ListsChangeWithASortOnly)
{
    const auto movie = given({.name = "a", .genre = "War"});
    auto& screen = opened<GenreGroupTableViewController>(Genre);
    movie->setGenre(QString("Epic"));
    EXPECT_TRUE(context().save().ok());
    opened(Rating);
    EXPECT_EQ(rows(opened(Genre)), QStringList("War 0")) << "but counts are read anew";
    screen.SortButtonTapped();
    EXPECT_EQ(screen.GenreList, QStringList("Epic"));
    screen.UnwindSegue();
    EXPECT_EQ(navigation.depth(), 2) << "no menu lies below these tabs";
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
