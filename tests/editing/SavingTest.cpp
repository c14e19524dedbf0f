#include "tests/editing/AddMovieTest.h"
#include "tests/support/FullDisk.h"

namespace {

using SavingTest = AddMovieTest;

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

TEST_F(SavingTest, TextsAreStoredTrimmedOfBlanksAndTabs)
{
    AddMovieViewController& screen = openedAndFilled();
    type(*screen.ActorsTextView, "  Weaver\n\tHolm \n");
    type(*screen.DirectorsTextView, "\tScott ");
    type(*screen.ProducersTextView, " Carroll\t ");
    type(*screen.NotesTextView, " scary! ");
    screen.SaveButtonClicked();
    const auto movie = storedMovie();
    EXPECT_EQ(movie->actors(), QString("Weaver\n\tHolm \n")) << "line breaks are no blanks";
    EXPECT_EQ(movie->directors(), QString("Scott"));
    EXPECT_EQ(movie->producers(), QString("Carroll"));
    EXPECT_EQ(movie->notes(), QString("scary!"));
    EXPECT_EQ(movie->provider(), std::nullopt);
}

} // namespace
