#include "exchange/PrintMoviesViewController.h"

#include "exchange/PrintSelection.h"
#include "model/AppDelegate.h"
#include "model/SharedValues.h"
#include "platform/foundation/Console.h"
#include "platform/services/UIPrintInteractionController.h"
#include "platform/toolkit/UIAlertController.h"
#include "summaries/MovieReport.h"

#include <QPointer>
#include <limits>

namespace {

std::vector<std::shared_ptr<Movies>> moviesOf(const NSFetchRequest& request)
{
    auto fetched = AppDelegate::shared().persistentContainer().viewContext().fetch<Movies>(request);
    if (fetched)
        return std::move(fetched).value();
    console(fetched.error().localizedDescription);
    return {};
}

void tellOfPrinting(bool completed, const std::optional<NSError>& error)
{
    if (!error)
        console(completed ? QStringLiteral("Image is Printed") : QStringLiteral("nil"));
}

} // namespace

void PrintMoviesViewController::viewDidLoad()
{
    setTitle(QStringLiteral("Print"));
    PrintButton->setLayer({.cornerRadius = 10, .borderWidth = 2, .borderColor = Qt::black});
    CreateFileButton->setLayer({.cornerRadius = 10, .borderWidth = 2, .borderColor = Qt::black});
    FileTextView->setLayer({.cornerRadius = 5, .borderWidth = 1, .borderColor = QColor()});
    FileTextView->setEditable(false);
    FileTextView->setText({});
    caller = shared().ReturnScreen;
    const auto request = printRequest();
    if (!request)
        return;
    MovieList = moviesOf(*request);
    // Ignored: the screen stays open without movies, too. The call shows the alert.
    (void)hasMovies();
}

void PrintMoviesViewController::viewDidDisappear(bool animated)
{
    dismiss();
    UIPrintInteractionController::sharedPrintController().dismiss(animated);
}

bool PrintMoviesViewController::hasMovies()
{
    if (!MovieList.empty())
        return true;
    PrintButton->setHidden(true);
    present(
        UIAlertController::withOk(QStringLiteral("Empty Data Set!"), QStringLiteral("No Movies to Print!")));
    return false;
}

void PrintMoviesViewController::CreateFileClick()
{
    if (!hasMovies())
        return;
    appendMovies();
    FileTextView->setAttributedText(MovieString);
    print();
}

void PrintMoviesViewController::appendMovies()
{
    if (caller == QStringLiteral("GenreBreakdown"))
        appendReportTitle(MovieString,
                          genreReport().titleText + genreReport().titleValue(*MovieList.front()));
    else
        makeAllTitle(MovieString);
    for (const auto& movie : MovieList) {
        appendMovieBlock(MovieString, *movie, genreReport(), viewWidth);
        if (i == std::numeric_limits<qint16>::max())
            fatalError(QStringLiteral("More movies to print than a 16-bit counter holds"));
        ++i;
    }
}

void PrintMoviesViewController::EmailFileClick()
{
    print();
}

void PrintMoviesViewController::print()
{
    UIPrintInteractionController& controller = UIPrintInteractionController::sharedPrintController();
    controller.printFormatter = UISimpleTextPrintFormatter(FileTextView->attributedText());
    controller.showsNumberOfCopies = true;
    controller.printInfo.outputType = UIPrintInfo::OutputType::General;
    const auto told = [screen = QPointer(this)](bool completed, const std::optional<NSError>& error) {
        if (screen)
            screen->activityIndicator->stopAnimating();
        tellOfPrinting(completed, error);
    };
    if (controller.present(true, told))
        activityIndicator->startAnimating();
}
