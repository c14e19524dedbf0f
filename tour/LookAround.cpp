#include "tour/Chapters.h"
#include "tour/Tour.h"

namespace {

struct Announcement
{
    QString entry;
    QString message;
};

const Announcement announcements[] = {
    {"Group By", "Your movies grouped and counted by genre, year released, date watched, rating and provider "
                 "will be here."},
    {"Settings", "The default watch date and the style of the date picker will be chosen here."},
    {"Print", "The movie list will be printed from here."},
    {"Reference Lists", "Your genres, providers and ratings will be kept here."},
    {"Rate/Share", "Reviews, sharing and feedback will be here."},
};

void openAnnouncements(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    for (const auto& [entry, message] : announcements) {
        tour.step(entry + " says what will be there");
        tour.choose(entry);
        visitor.expect(text(message));
        tour.picture(entry.toLower().replace(' ', '-').replace('/', '-'));
        visitor.tap(button("Back to Menu"));
        visitor.expect(button("Menu"));
    }
}

void openExport(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("Export says what will be there; two steps lead back");
    tour.choose("Import/Export");
    visitor.tap(button("Export Movies"));
    visitor.expect(text("The exchange file will be made here."));
    tour.picture("export");
    visitor.tap(button("Back"));
    visitor.tap(button("Back"));
    visitor.expect(button("Menu"));
}

void openMovie(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("A row opens its movie");
    tour.choose("Movie List");
    visitor.expectThat("The list shows no movie", [&] { return !visitor.rowNames().isEmpty(); });
    visitor.settle();
    visitor.tap(row(visitor.rowNames().constFirst()));
    visitor.expect(heading("Update Movie"));
    tour.picture("update-movie");
    visitor.tap(button("Back"));
    visitor.expect(heading("Movie List"));
}

void useKeyboard(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("The keyboard searches, adds and goes back");
    visitor.press(Qt::Key_F, Qt::ControlModifier);
    visitor.press(Qt::Key_Q);
    visitor.expectText(field("Search by Movie Name"), "q");
    visitor.press(Qt::Key_Escape);
    visitor.expectText(field("Search by Movie Name"), "");
    visitor.press(Qt::Key_N, Qt::ControlModifier);
    visitor.expect(heading("Add Movie"));
    visitor.press(Qt::Key_Escape);
    visitor.expect(heading("Movie List"));
    visitor.press(Qt::Key_Escape);
    visitor.expect(button("Menu"));
}

} // namespace

void lookAround(Tour& tour)
{
    openAnnouncements(tour);
    openExport(tour);
    openMovie(tour);
    useKeyboard(tour);
}
