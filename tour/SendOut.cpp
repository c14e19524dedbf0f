#include "tour/Chapters.h"
#include "tour/Tour.h"

#include <QFile>

namespace {

void exportMovies(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("The whole catalogue becomes one file");
    tour.choose("Import/Export");
    visitor.tap(button("Export Movies"));
    visitor.expect(heading("Export Movies"));
    tour.picture("export");
    visitor.tap(button("Create Export File"));
    visitor.expect(text("Process Complete - File Ready to Save To Files or Email"));
    tour.picture("export-complete");
    visitor.tap(button("OK"));
    visitor.expectNo(text("Data Export"));
    visitor.tap(button("Save To Files"));
    visitor.expect(choice("Save to Files"));
    tour.picture("export-save");
    visitor.tap(choice("Save to Files"));
    visitor.expectThat("There is no exchange file",
                       [&] { return QFile(tour.home.path("Marrowvale.csv")).size() > 0; });
    visitor.expectNo(choice("Save to Files"));
    visitor.tap(button("Back"));
    visitor.tap(button("Back"));
    visitor.expect(button("Menu"));
}

void rateAndShare(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("Reviews, sharing and feedback");
    tour.choose("Rate/Share");
    visitor.expect(heading("Rate/Share"));
    tour.picture("rate-share");
    tour.device.setCanSendText(true);
    visitor.tap(row("Share the Web Page"));
    visitor.expect(choice("Copy"));
    tour.picture("share-web-page");
    visitor.tap(button("Cancel"));
    visitor.expectNo(choice("Copy"));
    visitor.tap(button("Back"));
    visitor.expect(button("Menu"));
}

} // namespace

void sendOut(Tour& tour)
{
    exportMovies(tour);
    rateAndShare(tour);
}
