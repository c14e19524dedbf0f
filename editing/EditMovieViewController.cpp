#include "editing/EditMovieViewController.h"

#include "editing/DateEntry.h"
#include "model/MovieLines.h"
#include "platform/foundation/Calendar.h"
#include "platform/foundation/Console.h"
#include "platform/foundation/DispatchQueue.h"
#include "platform/services/Device.h"
#include "platform/services/SystemVersions.h"
#include "platform/services/TextSharing.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UIImage.h"

#include <QHash>
#include <QPointer>

namespace {

constexpr std::chrono::seconds reviewDelay(5);

// Where each place that opens this screen is returned to.
const QHash<QString, QString>& segueByReturnScreen()
{
    static const QHash<QString, QString> table{
        {QStringLiteral("MainList"), QStringLiteral("unwindToList")},
        {QStringLiteral("GenreBreakdown"), QStringLiteral("unwindToGenreBreakdownTableView")},
        {QStringLiteral("DateReleasedBreakdown"), QStringLiteral("unwindToDateReleasedBreakdownTableView")},
        {QStringLiteral("DateWatchedBreakdown"), QStringLiteral("unwindToDateWatchedBreakdownTableView")},
        {QStringLiteral("RatingBreakdown"), QStringLiteral("unwindToRatingBreakdownTableView")},
        {QStringLiteral("ProviderBreakdown"), QStringLiteral("unwindToProviderBreakdownTableView")},
    };
    return table;
}

std::optional<QString> filledIn(const UITextInput& input)
{
    return input.text().isEmpty() ? std::nullopt : std::optional(input.text());
}

} // namespace

void EditMovieViewController::viewDidLoad()
{
    setTitle(QStringLiteral("Update Movie"));
    MovieEditorViewController::viewDidLoad();
    opening = {shared().CurrentMovie, shared().ReturnScreen};
    showCurrentMovie();
    showDateWatched();
    showCover();
    labelBarButtons();
    DispatchQueue::main().asyncAfter(reviewDelay, [screen = QPointer(this)] {
        if (screen)
            screen->reviewService.requestReview();
    });
}

void EditMovieViewController::viewWillAppear(bool /*animated*/)
{
    shared().CurrentMovie = opening.movie;
    shared().ReturnScreen = opening.returnScreen;
}

void EditMovieViewController::showCurrentMovie()
{
    const MovieFields& movie = shared().CurrentMovie;
    const std::pair<UITextInput*, const QString&> texts[] = {
        {MovieNameTextField, movie.movieName}, {providerField, movie.provider},
        {RatingTextField, movie.rating},       {GenreTextField, movie.genre},
        {ActorsTextView, movie.actors},        {DirectorsTextView, movie.directors},
        {ProducersTextView, movie.producers},  {NotesTextView, movie.notes},
    };
    for (const auto& [input, text] : texts)
        if (!text.isEmpty())
            input->setText(text);
    YearReleasedTextField->setText(QString::number(movie.yearReleased));
    RunTimeTextField->setText(QString::number(movie.runTime));
}

void EditMovieViewController::showDateWatched()
{
    DateWatched = shared().CurrentMovie.dateWatched.value_or(QDateTime::currentDateTimeUtc());
    DateWatchedTextField->setText(fullDateText(DateWatched));
}

void EditMovieViewController::showCover()
{
    if (const auto& bytes = shared().CurrentMovie.frontCover)
        coverView->setImage(imageWithData(*bytes));
}

void EditMovieViewController::labelBarButtons()
{
    ZoomButton->setTitle(QStringLiteral("Magnify"));
    ShareButton->setTitle(QStringLiteral("Share"));
    if (Device::current().systemVersion < SystemVersions::symbolImages)
        return;
    ZoomButton->setImage(QStringLiteral("plus.magnifyingglass"));
    ShareButton->setImage(QStringLiteral("square.and.arrow.up"));
}

void EditMovieViewController::TapFrontImage()
{
    performSegue(QStringLiteral("Zoom"));
}

QString EditMovieViewController::missingFieldsMessage() const
{
    return QStringLiteral("Required Fields Labeled in RED Not Entered");
}

std::vector<std::shared_ptr<Movies>> EditMovieViewController::selectedRecords()
{
    const MovieFields& movie = shared().CurrentMovie;
    NSFetchRequest request = Movies::fetchRequest();
    request.predicate = NSCompoundPredicate::andPredicate(
        {NSPredicate(QStringLiteral("movieName = %@"), {movie.movieName}),
         NSPredicate(QStringLiteral("yearReleased = %@"), {QString::number(movie.yearReleased)})});
    request.setReturnsObjectsAsFaults(false);
    auto found = context.fetch<Movies>(request);
    if (found)
        return std::move(found).value();
    console(found.error().localizedDescription);
    return {};
}

std::shared_ptr<Movies> EditMovieViewController::recordToSave()
{
    Results = selectedRecords();
    ResultsCount = static_cast<int>(Results.size());
    return ResultsCount < 1 ? nullptr : Results.front();
}

void EditMovieViewController::writeDateWatched(Movies& movie)
{
    const DateComponents day = Calendar::current().components(DateWatched);
    movie.setWDay(static_cast<qint16>(day.day));
    movie.setWMonth(static_cast<qint16>(day.month));
    movie.setWYear(static_cast<qint16>(day.year));
    movie.setDateWatched(DateWatched);
}

void EditMovieViewController::leave()
{
    const QString& origin = shared().ReturnScreen;
    console(origin);
    const QString segue = segueByReturnScreen().value(origin);
    if (!segue.isEmpty())
        performSegue(segue);
}

void EditMovieViewController::RemoveFrontImage()
{
    std::vector<UIAction> answers;
    answers.push_back({.title = QStringLiteral("Yes"), .handler = [this] { removeStoredCover(); }});
    answers.push_back({.title = QStringLiteral("No"), .style = UIAction::Style::Cancel});
    present(std::make_unique<UIAlertController>(QStringLiteral("Remove Front Movie Image"),
                                                QStringLiteral("Do You Want to Remove This Image?"),
                                                std::move(answers)));
}

void EditMovieViewController::removeStoredCover()
{
    const auto records = selectedRecords();
    if (!records.empty()) {
        records.front()->setFrontCover(std::nullopt);
        if (const Status saved = context.save(); !saved)
            console(saved.error().localizedDescription);
    }
    coverView->setImage({});
}

void EditMovieViewController::shareButtonClicked()
{
    shareWhereTextsCanBeSent(*this, [this] {
        std::vector<ActivityItem> items{movieLines({.movieName = filledIn(*MovieNameTextField),
                                                    .provider = filledIn(*providerField),
                                                    .yearReleased = filledIn(*YearReleasedTextField),
                                                    .runTime = filledIn(*RunTimeTextField),
                                                    .rating = filledIn(*RatingTextField),
                                                    .genre = filledIn(*GenreTextField),
                                                    .actors = filledIn(*ActorsTextView),
                                                    .directors = filledIn(*DirectorsTextView),
                                                    .notes = filledIn(*NotesTextView)})};
        if (!coverView->image().isNull())
            items.emplace_back(coverView->image());
        return items;
    });
}
