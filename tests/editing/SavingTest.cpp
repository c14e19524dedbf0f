#include "model/MarrowvaleModel.h"
#include "platform/foundation/Calendar.h"
#include "tests/editing/AddMovieTest.h"
#include "tests/support/FullDisk.h"

namespace {

using SavingTest = AddMovieTest;

TEST_F(SavingTest, TextsAreStoredTrimmedOfBlanksAndTabsButTheProviderAsItStands)
{
    AddMovieViewController& screen = opened();
    type(*screen.MovieNameTextField, " \tAlien ");
    type(*screen.WatchedOnTextField, "  Hulu\t");
    type(*screen.YearReleasedTextField, "1979");
    type(*screen.RunTimeTextField, "117");
    type(*screen.GenreTextField, "\tHorror");
    type(*screen.RatingTextField, " R ");
    type(*screen.ActorsTextView, "  Weaver\n\tHolm \n");
    type(*screen.DirectorsTextView, "\tScott ");
    type(*screen.ProducersTextView, " Carroll\t ");
    type(*screen.NotesTextView, " scary! ");
    screen.SaveButtonClicked();

    const auto movie = storedMovie();
    ASSERT_NE(movie, nullptr);
    EXPECT_EQ(movie->movieName(), QString("Alien"));
    EXPECT_EQ(movie->provider(), QString("  Hulu\t"));
    EXPECT_EQ(movie->yearReleased(), 1979);
    EXPECT_EQ(movie->runTime(), 117);
    EXPECT_EQ(movie->genre(), QString("Horror"));
    EXPECT_EQ(movie->rating(), QString("R"));
    EXPECT_EQ(movie->actors(), QString("Weaver\n\tHolm \n")) << "line breaks are no blanks";
    EXPECT_EQ(movie->directors(), QString("Scott"));
    EXPECT_EQ(movie->producers(), QString("Carroll"));
    EXPECT_EQ(movie->notes(), QString("scary!"));
}

TEST_F(SavingTest, EmptyFieldsAreLeftUnsetExceptTheRating)
{
    openedAndFilled().SaveButtonClicked();
    const auto movie = storedMovie();
    ASSERT_NE(movie, nullptr);
    EXPECT_EQ(movie->rating(), QString("")) << "empty, not absent";
    for (const auto& text :
         {movie->provider(), movie->actors(), movie->directors(), movie->producers(), movie->notes()})
        EXPECT_EQ(text, std::nullopt);
    EXPECT_EQ(movie->frontCover(), std::nullopt);
    EXPECT_EQ(movie->runTime(), 0);
    EXPECT_EQ(movie->dateWatched(), MarrowvaleModel::defaultWatchDate());
    EXPECT_EQ(movie->wYear(), 0);
}

TEST_F(SavingTest, WithoutARequiredFieldNothingIsSavedAndNothingLost)
{
    AddMovieViewController& screen = openedAndFilled();
    type(*screen.NotesTextView, "kept");
    for (UITextField* field :
         {screen.MovieNameTextField, screen.YearReleasedTextField, screen.GenreTextField}) {
        const QString text = field->text();
        field->setText({});
        screen.SaveButtonClicked();
        EXPECT_EQ(closedAlert(screen), "Movie Not Saved: Required Fields Labeled in RED Not Entered or Date "
                                       "Released is not 4 numbers (yyyy)");
        field->setText(text);
    }
    EXPECT_FALSE(context().hasChanges());
    EXPECT_TRUE(storedMovies().empty());
    EXPECT_EQ(storyboard.taken, QStringList());
    EXPECT_EQ(screen.NotesTextView->text(), "kept");

    screen.MovieNameTextField->setText(" \t ");
    screen.SaveButtonClicked();
    EXPECT_EQ(storedMovie()->movieName(), QString("")) << "blanks are not nothing";
}

TEST_F(SavingTest, EveryWholeNumberOf16BitsIsStored)
{
    const std::vector<std::pair<QString, qint16>> cases{
        {"1", 1}, {"12345", 12345}, {"007", 7}, {"+1979", 1979}, {"-32768", -32768}, {"32767", 32767}};
    for (const auto& [text, number] : cases) {
        AddMovieViewController& screen = openedAndFilled();
        screen.YearReleasedTextField->setText(text);
        screen.RunTimeTextField->setText(text);
        screen.SaveButtonClicked();
        const auto movie = storedMovie();
        EXPECT_EQ(movie->yearReleased(), number) << qPrintable(text);
        EXPECT_EQ(movie->runTime(), number) << qPrintable(text);
        context().deleteObject(movie);
        EXPECT_TRUE(context().save().ok());
    }
}

TEST_F(SavingTest, AnyOtherNumberEndsTheProgram)
{
    AddMovieViewController& screen = openedAndFilled();
    for (const char* text : {"1.5", "32768", "-32769", " 1979", "\xd9\xa1\xd9\xa9"}) {
        screen.YearReleasedTextField->setText(text);
        EXPECT_DEATH(screen.SaveButtonClicked(), "Fatal error: \".*\" is not a whole number") << text;
    }
    screen.YearReleasedTextField->setText("1979");
    type(*screen.RunTimeTextField, "1.5");
    EXPECT_DEATH(screen.SaveButtonClicked(), "Fatal error: \"1\\.5\" is not a whole number");
    EXPECT_TRUE(storedMovies().empty());
}

TEST_F(SavingTest, TheSameMovieMayBeEnteredTwice)
{
    AddMovieViewController& screen = openedAndFilled();
    EXPECT_EQ(screen.managedObjectContext, nullptr);
    screen.SaveButtonClicked();
    EXPECT_EQ(screen.managedObjectContext, &context());
    screen.SaveButtonClicked();
    EXPECT_EQ(storedMovies().size(), 2U);
}

TEST_F(SavingTest, OnlyTheMenuAndTheListAreReturnedTo)
{
    const std::vector<std::pair<QString, QStringList>> cases{
        {"MainList", {"unwindToList"}}, {"MainMenu", {"unwindToMenu"}}, {"GenreBreakdown", {}}, {"", {}}};
    for (const auto& [origin, segues] : cases) {
        storyboard.taken.clear();
        AddMovieViewController& screen = openedAndFilled();
        shared().ReturnScreen = origin;
        screen.SaveButtonClicked();
        EXPECT_EQ(storyboard.taken, segues) << qPrintable(origin);
        EXPECT_EQ(screen.MovieNameTextField->text(), "Alien");
    }
}

TEST_F(SavingTest, AFailedSaveIsToldOnTheConsoleAndTheScreenLeaves)
{
    AddMovieViewController& screen = openedAndFilled();
    shared().ReturnScreen = "MainMenu";
    testing::internal::CaptureStdout();
    {
        const FullDisk disk(1024);
        screen.SaveButtonClicked();
    }
    EXPECT_NE(testing::internal::GetCapturedStdout(), "");
    EXPECT_TRUE(context().hasChanges());
    EXPECT_EQ(screen.presentedViewController(), nullptr);
    EXPECT_EQ(storyboard.taken, QStringList("unwindToMenu"));
}

} // namespace
