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
    {"Print", "The movie list will be printed from here."},
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

void useKeyboard(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("The keyboard searches, adds and goes back");
    tour.choose("Movie List");
    visitor.expect(heading("Movie List"));
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
    useKeyboard(tour);
}
