#include "tests/editing/ReferenceListTest.h"

#include "editing/ReferenceTexts.h"

#include <gmock/gmock.h>

namespace {

TEST_P(ReferenceListTest, TheListIsSortedUnderItsNumberAndShowsEqualTextsEach)
{
    EXPECT_EQ(list().viewForHeaderInSection(0)->text, member.header + QString("0"));
    EXPECT_EQ(shown(), QStringList());
    for (const char* value : {"b", "B", "", "a", "b"})
        given(value);
    EXPECT_EQ(shown(), QStringList()) << "nothing reloads by itself";

    EXPECT_EQ(add("c"), "");
    EXPECT_EQ(shown(), QStringList({"", "B", "a", "b", "b", "c"}));
    EXPECT_EQ(list().tableView()->header().text, member.header + QString("6"));
}

TEST_P(ReferenceListTest, RowsAreBlackOnPaleInTheDark)
{
    given("Drama");
    device.setDark(true);
    auto& dark = opened(member.list());
    const auto row = dark.cellForRowAt({0}).value<ReferenceListTableViewCell>();
    EXPECT_EQ(row.valueLabel.textColor, QColor(Qt::black));
    EXPECT_EQ(row.backgroundColor, colorWithHue(0.5, 0.06, 0.96, 1));
    EXPECT_EQ(row.layer, (Layer{.cornerRadius = 10, .borderWidth = 2, .borderColor = Qt::black}));
    EXPECT_FALSE(list().DarkMode);
    EXPECT_EQ(dark.viewForHeaderInSection(0), (LabelContent{.text = member.header + QString("1"),
                                                            .textColor = Qt::red,
                                                            .backgroundColor = Qt::lightGray,
                                                            .fontSize = 13,
                                                            .centred = true}));
}

TEST_P(ReferenceListTest, TheTextAsTypedMustBeNewAndNotEmptyAndIsTrimmedAfterwards)
{
    given("Drama");
    given(QString::fromUtf8("Com\u00e9die"));
    const std::vector<std::pair<QString, QString>> refused{
        {"", member.emptyMessage},
        {"Drama", "Duplicates not allowed"},
        {QString::fromUtf8("Come\u0301die"), "Duplicates not allowed"}};
    for (const auto& [text, message] : refused)
        EXPECT_EQ(add(text), message) << qPrintable(text);
    EXPECT_EQ(stored().size(), 2);

    const std::vector<std::pair<QString, QString>> accepted{
        {"drama", "drama"},  {"Drama ", "Drama"}, {"\t Epic of old\t", "Epic of old"},
        {"\nWar ", "\nWar"}, {" \t ", ""},        {" ", ""}};
    for (const auto& [typed, kept] : accepted) {
        EXPECT_EQ(add(typed), "") << qPrintable(typed);
        EXPECT_EQ(stored().constLast(), kept);
    }
    EXPECT_EQ(shown().mid(0, 2), QStringList({"", ""})) << "empty values come first";
}

TEST_P(ReferenceListTest, OnlyTheFirstRecordOfTheChosenTextIsRenamedToAnyText)
{
    for (const char* value : {"Drama", "Thriller", "Drama"})
        given(value);
    const auto movie = CatalogueTest::given({.name = "Alien"});
    movie->setValueForKey(QString("Drama"), member.movieAttribute);
    ASSERT_TRUE(context().save().ok());

    EXPECT_EQ(add("Epic"), "");
    EXPECT_EQ(shown(), QStringList({"Drama", "Drama", "Epic", "Thriller"}));
    rename(1, " Thriller\t");
    EXPECT_EQ(stored(), QStringList({"Thriller", "Thriller", "Drama", "Epic"}));
    EXPECT_EQ(shown(), QStringList({"Drama", "Epic", "Thriller", "Thriller"}));
    rename(0, "");
    EXPECT_EQ(stored(), QStringList({"Thriller", "Thriller", "", "Epic"}));
    EXPECT_EQ(movie->valueForKey(member.movieAttribute), AttributeValue(QString("Drama")));
}

TEST_P(ReferenceListTest, TheChosenTextIsEditedWhateverBecomesOfItsRecord)
{
    given("Drama");
    given("Epic");
    opened(member.list()).tableView()->select(1);
    auto& screen = opened(member.edit());
    EXPECT_EQ(screen.title(), QString("Edit ") + member.singular);
    EXPECT_EQ(screen.valueField->text(), "Epic");
    EXPECT_TRUE(screen.valueField->isEditing());
    EXPECT_EQ(screen.tapAction(), "");

    context().deleteObject(context().fetch(NSFetchRequest(member.entity)).value().back());
    screen.valueField->setText("War");
    press(screen, member.editAction);
    EXPECT_EQ(screen.ResultsCount, 0);
    EXPECT_EQ(stored(), QStringList({"Drama", "Epic"})) << "nothing found, nothing saved";
    EXPECT_EQ(shared().*member.chosen, "Epic");
    EXPECT_EQ(opened(member.edit()).valueField->text(), "Epic");
}

TEST_P(ReferenceListTest, ASwipeDeletesOneRecordForGoodAndNoMovieKnows)
{
    for (const char* value : {"Drama", "Epic", "Drama"})
        given(value);
    const auto movie = CatalogueTest::given({.name = "Alien"});
    movie->setValueForKey(QString("Drama"), member.movieAttribute);
    ASSERT_TRUE(context().save().ok());
    auto& screen = opened(member.list());
    UITableView& table = *screen.tableView();

    screen.commitEditingStyle(UITableView::EditingStyle::Delete, {2});
    EXPECT_EQ(screen.listOfValues.size(), 3U) << "the table's own edit touches no data";
    ASSERT_EQ(table.swipeActions(table.rowKey(1)).titles, QStringList("delete"));
    table.performSwipeAction(table.swipeActions(table.rowKey(1)), 0);
    EXPECT_EQ(stored(), QStringList({"Drama", "Epic"}));
    EXPECT_EQ(table.header().text, member.header + QString("2"));
    EXPECT_EQ(screen.presentedViewController(), nullptr) << "no question is asked";
    table.performSwipeAction(table.swipeActions(table.rowKey(0)), 0);
    EXPECT_EQ(referenceTexts(context(), member.entity, member.attribute), QStringList("Epic"));
    EXPECT_EQ(movie->valueForKey(member.movieAttribute), AttributeValue(QString("Drama")));
}

TEST_P(ReferenceListTest, AFailedSaveIsToldOnTheConsoleAndTheListIsBack)
{
    EXPECT_EQ(add("Drama"), "");
    const auto record = list().listOfValues.front();
    for (const char* act : {"UPDATE", "INSERT"})
        ASSERT_TRUE(otherConnection()->run(QString("CREATE TRIGGER no%1 BEFORE %1 ON %2 WHEN NEW.%3 = 'bad' "
                                                   "BEGIN SELECT RAISE(ABORT, 'no %1 today'); END")
                                               .arg(act, member.entity, member.attribute)
                                               .toUtf8()));
    testing::internal::CaptureStdout();
    rename(0, "bad");
    EXPECT_THAT(testing::internal::GetCapturedStdout(), testing::HasSubstr("no UPDATE today"));
    record->setValue("Epic");
    EXPECT_TRUE(context().save().ok());

    testing::internal::CaptureStdout();
    EXPECT_EQ(add("bad"), "");
    EXPECT_THAT(testing::internal::GetCapturedStdout(), testing::HasSubstr("no INSERT today"));
    EXPECT_TRUE(context().hasChanges()) << "the value waits for the next save";
    EXPECT_EQ(stored(), QStringList("Epic"));
}

TEST_P(ReferenceListTest, TheAddScreenStartsWithTheKeyboardAndATapTakesItAway)
{
    auto& screen = opened(member.add());
    EXPECT_EQ(screen.title(), QString("Add ") + member.singular);
    EXPECT_EQ(screen.property((member.singular + std::string("TextField")).c_str()).value<QObject*>(),
              screen.valueField);
    EXPECT_EQ(screen.valueField->layer(), (Layer{.cornerRadius = 5, .borderWidth = 1}));
    EXPECT_TRUE(screen.valueField->isEditing());
    press(screen, screen.tapAction());
    EXPECT_FALSE(screen.valueField->isEditing());
}

template <typename Screen>
std::unique_ptr<Screen> madeScreen()
{
    return std::make_unique<Screen>();
}

INSTANTIATE_TEST_SUITE_P(
    Each, ReferenceListTest,
    testing::Values(
        ReferenceListMember{"Genres", "genre", "genre", "# Genre = ", "Genre not Entered", "Genre",
                            "SaveGenre", &SharedValues::selectedGenre,
                            madeScreen<GenreReferenceListTableViewController>,
                            madeScreen<AddGenreViewController>, madeScreen<EditGenreViewController>},
        ReferenceListMember{"Providers", "name", "provider", "# Providers = ", "Rating not Entered",
                            "Provider", "SaveRating", &SharedValues::selectedProvider,
                            madeScreen<ProviderReferenceListTableViewController>,
                            madeScreen<AddProviderViewController>, madeScreen<EditProviderViewController>},
        ReferenceListMember{"Ratings", "rating", "rating", "# Ratings = ", "Rating not Entered", "Rating",
                            "SaveRating", &SharedValues::selectedRating,
                            madeScreen<RatingReferenceListTableViewController>,
                            madeScreen<AddRatingViewController>, madeScreen<EditRatingViewController>}),
    [](const auto& info) { return std::string(info.param.entity); });

} // namespace
