#include "editing/EditMovieViewController.h"
#include "editing/ZoomViewController.h"
#include "platform/toolkit/UIImage.h"
#include "tests/editing/MovieEditorTest.h"

namespace {

const QDateTime watched(QDate(2021, 5, 24), QTime(20, 0), Qt::UTC);

QByteArray jpeg(const QColor& colour)
{
    QImage image(150, 150, QImage::Format_RGB32);
    image.fill(colour);
    return UIImageJPEGRepresentation(image, 0.9);
}

class EditMovieTest : public MovieEditorTest
{
protected:
    // A stored movie, chosen in the list.
    static std::shared_ptr<Movies> chosen(const std::optional<QDateTime>& date = watched)
    {
        const auto movie =
            given({.name = "Alien", .genre = "Horror", .rating = "R", .year = 1979, .watched = date});
        movie->setActors("Sigourney Weaver");
        movie->setNotes("In space");
        movie->setFrontCover(jpeg(Qt::red));
        EXPECT_TRUE(context().save().ok());
        shared().ReturnScreen = "MainList";
        shared().CurrentMovie = fieldsOf(*movie);
        return movie;
    }

    EditMovieViewController& opened() { return pushed<EditMovieViewController>(); }

    static UIAlertController& askedAbout(EditMovieViewController& screen)
    {
        screen.RemoveFrontImage();
        return static_cast<UIAlertController&>(*screen.presentedViewController());
    }
};

TEST_F(EditMovieTest, RemovingTheCoverReachesTheStoreAtOnceButOnlyAfterYes)
{
    const auto movie = chosen();
    EditMovieViewController& screen = opened();
    UIAlertController& question = askedAbout(screen);
    EXPECT_EQ(question.title() + ": " + question.message(),
              "Remove Front Movie Image: Do You Want to Remove This Image?");
    EXPECT_EQ(question.actionTitles(), QStringList({"Yes", "No"}));
    question.choose(question.cancelIndex());
    EXPECT_TRUE(movie->frontCover());
    EXPECT_FALSE(screen.FrontImage->image().isNull());

    askedAbout(screen).choose(0);
    EXPECT_FALSE(context().hasChanges());
    EXPECT_FALSE(movie->frontCover());
    EXPECT_TRUE(screen.FrontImage->image().isNull());

    movie->setMovieName("Renamed");
    screen.FrontImage->setImage(imageWithData(jpeg(Qt::blue)));
    movie->setFrontCover(jpeg(Qt::blue));
    askedAbout(screen).choose(0);
    EXPECT_TRUE(movie->frontCover()) << "no record is found under the old title";
    EXPECT_TRUE(screen.FrontImage->image().isNull());
}

TEST_F(EditMovieTest, AsksForAReviewFiveSecondsLater)
{
    using namespace std::chrono_literals;
    chosen();
    const EditMovieViewController& screen = opened();
    queue.advance(4999ms);
    EXPECT_FALSE(screen.reviewService.lastRequest());
    queue.advance(1ms);
    EXPECT_TRUE(screen.reviewService.lastRequest());
}

TEST_F(EditMovieTest, SharingNeedsADeviceThatSendsTexts)
{
    chosen();
    EditMovieViewController& screen = opened();
    device.setCanSendText(false);
    screen.shareButtonClicked();
    EXPECT_EQ(screen.presentedViewController(), nullptr) << "only once the queue gets to it";
    queue.advance({});
    EXPECT_EQ(closedAlert(screen), "Can't Send Text Message: Your device is not able to send text messages.");
}

TEST_F(EditMovieTest, ZoomShowsTheStoredCover)
{
    chosen();
    EditMovieViewController& editor = opened();
    editor.FrontImage->setImage({});
    editor.TapFrontImage();
    EXPECT_EQ(storyboard.taken, QStringList("Zoom"));

    auto& zoom = pushed<ZoomViewController>();
    zoom.viewDidLayoutSubviews(350);
    EXPECT_EQ(zoom.ZoomCollectionView->itemSize(), QSizeF(300, 300));
    ASSERT_EQ(zoom.ZoomCollectionView->cells().size(), 1);
    const auto cell = zoom.ZoomCollectionView->cells().front().value<ZoomCollectionViewCell>();
    EXPECT_EQ(cell.ZoomImage.pixelColor(75, 75).red(), 254) << "the stored one, not the editor's";
}

TEST_F(EditMovieTest, SavesNothingWithoutARequiredField)
{
    chosen();
    EditMovieViewController& screen = opened();
    type(*screen.GenreTextField, "");
    screen.SaveButtonClicked();
    EXPECT_EQ(closedAlert(screen), "Movie Not Saved: Required Fields Labeled in RED Not Entered");
}

TEST_F(EditMovieTest, WritesWhatIsFilledInAndLeavesTheRest)
{
    const auto movie = chosen();
    EditMovieViewController& screen = opened();
    type(*screen.MovieNameTextField, " Aliens ");
    type(*screen.YearReleasedTextField, "1986");
    type(*screen.ActorsTextView, "");
    screen.RatingTextField->setText("");
    screen.ProviderTextField->setText(" Hulu ");
    screen.DateWatched = QDateTime(QDate(2022, 2, 3), QTime(12, 0), Qt::UTC);
    screen.SaveButtonClicked();
    EXPECT_EQ(movie, storedMovie()) << "found under the old title and year";
    EXPECT_EQ(movie->movieName(), "Aliens");
    EXPECT_EQ(movie->yearReleased(), 1986);
    EXPECT_EQ(movie->actors(), "Sigourney Weaver") << "an emptied field clears nothing";
    EXPECT_EQ(movie->rating(), "");
    EXPECT_EQ(movie->provider(), " Hulu ");
    EXPECT_EQ(QDate(movie->wYear(), movie->wMonth(), movie->wDay()), QDate(2022, 2, 3));
    EXPECT_EQ(movie->dateWatched(), screen.DateWatched);
    EXPECT_EQ(screen.ResultsCount, 1);
    EXPECT_EQ(storyboard.taken, QStringList("unwindToList"));
}

TEST_F(EditMovieTest, ReturnsToWhereItWasOpened)
{
    const std::pair<const char*, const char*> ways[] = {
        {"MainList", "unwindToList"},
        {"GenreBreakdown", "unwindToGenreBreakdownTableView"},
        {"DateReleasedBreakdown", "unwindToDateReleasedBreakdownTableView"},
        {"DateWatchedBreakdown", "unwindToDateWatchedBreakdownTableView"},
        {"RatingBreakdown", "unwindToRatingBreakdownTableView"},
        {"ProviderBreakdown", "unwindToProviderBreakdownTableView"},
        {"MainMenu", nullptr},
    };
    chosen();
    EditMovieViewController& screen = opened();
    for (const auto& [origin, segue] : ways) {
        shared().ReturnScreen = origin;
        storyboard.taken.clear();
        testing::internal::CaptureStdout();
        screen.SaveButtonClicked();
        EXPECT_EQ(testing::internal::GetCapturedStdout(), std::string(origin) + "\n");
        EXPECT_EQ(storyboard.taken, segue ? QStringList(segue) : QStringList()) << origin;
    }
}

TEST_F(EditMovieTest, OfTwoWithOneTitleAndYearTheFirstIsChanged)
{
    const auto first = chosen();
    const auto second = given({.name = "Alien", .genre = "Horror", .year = 1979});
    EditMovieViewController& screen = opened();
    type(*screen.GenreTextField, "Thriller");
    screen.SaveButtonClicked();
    EXPECT_EQ(screen.ResultsCount, 2);
    EXPECT_EQ(first->genre(), "Thriller");
    EXPECT_EQ(second->genre(), "Horror");
}

} // namespace
