#include "tests/editing/ReferenceListTest.h"

#include <gmock/gmock.h>

namespace {

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
    list().tableView()->select(0);
    auto& screen = opened(member.edit());
    screen.valueField->setText("bad");
    press(screen, member.editAction);
    EXPECT_THAT(testing::internal::GetCapturedStdout(), testing::HasSubstr("no UPDATE today"));
    record->setValue("Epic");
    EXPECT_TRUE(context().save().ok());

    testing::internal::CaptureStdout();
    EXPECT_EQ(add("bad"), "");
    EXPECT_THAT(testing::internal::GetCapturedStdout(), testing::HasSubstr("no INSERT today"));
    EXPECT_TRUE(context().hasChanges()) << "the value waits for the next save";
    EXPECT_EQ(stored(), QStringList("Epic"));
}

TEST_P(ReferenceListTest, OnlyTheFirstOfEqualTextsIsRenamed)
{
    for (const char* value : {"Drama", "Thriller", "Drama"})
        given(value);
    EXPECT_EQ(add("Epic"), "");
    list().tableView()->select(0);
    auto& screen = opened(member.edit());
    EXPECT_EQ(screen.valueField->text(), "Drama");
    screen.valueField->setText(" War\t");
    press(screen, member.editAction);
    EXPECT_EQ(stored(), QStringList({"War", "Thriller", "Drama", "Epic"}));
    EXPECT_EQ(list().listOfValues.back()->value(), "War") << "the list is sorted anew";
}

template <typename Screen>
std::unique_ptr<Screen> madeScreen()
{
    return std::make_unique<Screen>();
}

INSTANTIATE_TEST_SUITE_P(
    Each, ReferenceListTest,
    testing::Values(
        ReferenceListMember{"Genres", "genre", "# Genre = ", "Genre not Entered", "Genre", "SaveGenre",
                            madeScreen<GenreReferenceListTableViewController>,
                            madeScreen<AddGenreViewController>, madeScreen<EditGenreViewController>},
        ReferenceListMember{"Providers", "name", "# Providers = ", "Rating not Entered", "Provider",
                            "SaveRating", madeScreen<ProviderReferenceListTableViewController>,
                            madeScreen<AddProviderViewController>, madeScreen<EditProviderViewController>},
        ReferenceListMember{"Ratings", "rating", "# Ratings = ", "Rating not Entered", "Rating", "SaveRating",
                            madeScreen<RatingReferenceListTableViewController>,
                            madeScreen<AddRatingViewController>, madeScreen<EditRatingViewController>}),
    [](const auto& info) { return std::string(info.param.entity); });

} // namespace
