#include "platform/foundation/Console.h"
#include "platform/foundation/DispatchQueue.h"
#include "platform/foundation/FileWriting.h"
#include "platform/pdf/PdfFile.h"
#include "platform/services/TextSharing.h"
#include "summaries/BreakdownTableViewController.h"
#include "summaries/MovieReport.h"

#include <QPointer>

// The part of the screen that makes its report.

namespace {

// Points; A4.
constexpr QSizeF paperSize(595.2, 841.8);

QString outcomeOf(const Status& written, const QString& path)
{
    return written ? QStringLiteral("wrote PDF file with multiple pages to: ") + path
                   : QStringLiteral("Could not create PDF file: ") + written.error().localizedDescription;
}

} // namespace

void BreakdownTableViewController::shareButtonClicked()
{
    if (activityIndicator->isAnimating() || !canSendTextsFrom(*this))
        return;
    const MovieRecords& movies = shownMovies();
    if (movies.empty())
        fatalError(QStringLiteral("A report of no movies"));
    MovieString = {};
    appendReportTitle(MovieString, kind.report.titleText + kind.report.titleValue(*movies.front()));
    for (const auto& movie : movies)
        appendMovieBlock(MovieString, *movie, kind.report, viewWidth);
    writeReport();
}

// One after the other: several screens share a file, which is to hold the report that was asked for last.
void BreakdownTableViewController::writeReport()
{
    activityIndicator->startAnimating();
    DispatchQueue::serial().async(
        [screen = QPointer(this), text = MovieString, path = outputFileURL.toLocalFile()] {
            const QString outcome = outcomeOf(writeAtomically(pdfOf(text, paperSize), path), path);
            DispatchQueue::main().async([screen, outcome] {
                if (screen)
                    screen->presentReport(outcome);
            });
        });
}

void BreakdownTableViewController::presentReport(const QString& outcome)
{
    activityIndicator->stopAnimating();
    console(outcome);
    present(std::make_unique<UIActivityViewController>(std::vector<ActivityItem>{outputFileURL}));
}
