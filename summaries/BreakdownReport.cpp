#include "platform/foundation/Background.h"
#include "platform/foundation/Console.h"
#include "platform/foundation/FileWriting.h"
#include "platform/pdf/PdfFile.h"
#include "platform/services/TextSharing.h"
#include "summaries/BreakdownTableViewController.h"
#include "summaries/MovieReport.h"

#include <QDir>
#include <QFileInfo>

// The part of the screen that makes its report.

namespace {

// Points; A4.
constexpr QSizeF paperSize(595.2, 841.8);

// The user may never have had a documents folder, or may have removed it. Where it can't be made, writing
// says so.
Status writeToFolder(const QByteArray& pdf, const QString& path)
{
    QDir().mkpath(QFileInfo(path).path());
    return writeAtomically(pdf, path);
}

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
    const QString title = kind.report.titleText + kind.report.titleValue(*movies.front());
    appendReportTitle(MovieString, title);
    for (const auto& movie : movies)
        appendMovieBlock(MovieString, *movie, kind.report, viewWidth);
    writeReport(title);
}

// One after the other: several screens share a file, which is to hold the report that was asked for last.
void BreakdownTableViewController::writeReport(const QString& title)
{
    activityIndicator->startAnimating();
    auto write = [text = MovieString, title, path = outputFileURL.toLocalFile()] {
        return outcomeOf(writeToFolder(pdfOf(text, paperSize, title), path), path);
    };
    background(Pool::inOrder(), std::move(write)).then(*this, [this](const QString& outcome) {
        presentReport(outcome);
    });
}

void BreakdownTableViewController::presentReport(const QString& outcome)
{
    activityIndicator->stopAnimating();
    console(outcome);
    present(std::make_unique<UIActivityViewController>(std::vector<ActivityItem>{outputFileURL}));
}
