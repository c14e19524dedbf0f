#include "tour/Chapters.h"
#include "tour/StoreFile.h"
#include "tour/Tour.h"

#include <QDir>
#include <QFile>

namespace {

struct Summary
{
    QString tab;
    QString title;
    QString header;
    // What the catalogue's file groups by.
    QString groups;
};

const Summary summaries[] = {
    {"Genre", "Genres", "# Genre's = ", "SELECT DISTINCT genre FROM Movies WHERE genre IS NOT NULL"},
    {"Released", "Years Released", "# Year's = ", "SELECT DISTINCT yearReleased FROM Movies"},
    {"Watched", "Dates Watched", "# Dates Watched = ",
     "SELECT DISTINCT strftime('%Y %m', dateWatched / 1000, 'unixepoch', 'localtime') FROM Movies "
     "WHERE dateWatched IS NOT NULL"},
    {"Rating", "Ratings", "# Ratings = ", "SELECT DISTINCT rating FROM Movies WHERE rating IS NOT NULL"},
    {"Provider", "Providers",
     "# Genre's = ", "SELECT DISTINCT provider FROM Movies WHERE provider IS NOT NULL"},
};

void lookAtEachTab(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    for (const Summary& summary : summaries) {
        const auto groups = StoreFile::column(summary.groups).size();
        tour.step(QString("%1: %2 groups").arg(summary.title).arg(groups));
        visitor.tap(tab(summary.tab));
        visitor.expect(heading(summary.title));
        visitor.expect(text(summary.header + QString::number(groups)));
        tour.picture("groups-" + summary.tab.toLower());
    }
}

void reportOnWars(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("A group found by the search opens its movies");
    visitor.tap(tab("Genre"));
    visitor.type(field("Sort and Search By Genre"), "western");
    visitor.expectThat("The search does not end at one genre",
                       [&] { return visitor.rowNames().size() == 1; });
    visitor.settle();
    visitor.tap(row("Western"));
    visitor.expect(heading("Western"));
    visitor.expect(text(QString("# Movies = %1")
                            .arg(StoreFile::number("SELECT count(*) FROM Movies WHERE genre = 'Western'"))));
    tour.picture("breakdown");

    tour.step("Their report is a file to send on");
    tour.device.setCanSendText(true);
    QDir(tour.home.path(".")).mkpath("Documents");
    visitor.tap(button("Share"));
    visitor.expect(text("GenreMovieList.pdf"));
    tour.picture("share-report");
    visitor.expectThat("There is no report",
                       [&] { return QFile(tour.home.path("Documents/GenreMovieList.pdf")).size() > 0; });
    visitor.tap(button("Cancel"));
    visitor.expectNo(text("GenreMovieList.pdf"));
}

void expectPrinted(Tour& tour, int jobs)
{
    tour.visitor.expectThat(QString("%1 jobs are printed, not %2").arg(tour.device.printedJobs()).arg(jobs),
                            [&] { return tour.device.printedJobs() == jobs; });
}

void printMovies(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    const Control empty = text("Nothing created yet");
    tour.step("They can be printed, too");
    visitor.tap(button("Print"));
    visitor.expect(heading("Print"));
    visitor.expect(empty);
    visitor.settle();
    visitor.tap(button("Print"));
    expectPrinted(tour, 1);
    visitor.settle();
    visitor.expect(empty);
    visitor.tap(button("Create and Print"));
    expectPrinted(tour, 2);
    visitor.expectNo(empty);
    tour.picture("print");
}

} // namespace

void groupMovies(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.choose("Group By");
    visitor.expect(heading("Genres"));
    lookAtEachTab(tour);
    reportOnWars(tour);
    printMovies(tour);
    visitor.tap(button("Back"));
    visitor.expect(heading("Western"));
    visitor.tap(button("Back"));
    visitor.expect(heading("Genres"));
    visitor.tap(button("Menu"));
    visitor.expect(heading("Marrowvale"));
}
