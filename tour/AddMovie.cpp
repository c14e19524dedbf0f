#include "platform/foundation/UserDefaults.h"
#include "tour/Chapters.h"
#include "tour/StoreFile.h"
#include "tour/Tour.h"
#include "tour/TourCatalogue.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {

// As the form writes a date.
QString fullText(const QDate& date)
{
    return QLocale().toString(date, "dddd, MMMM d, yyyy");
}

void refuseIncompleteMovie(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("An empty form is not saved");
    visitor.tap(button("Save"));
    visitor.expect(text("Movie Not Saved"));
    visitor.expect(
        text("Required Fields Labeled in RED Not Entered or Date Released is not 4 numbers (yyyy)"));
    tour.picture("movie-not-saved");
    visitor.tap(button("OK"));
    visitor.expectNo(text("Movie Not Saved"));
}

void typeTexts(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("Title and numbers are typed; what is no digit is refused");
    visitor.type(field("Movie Name"), "  The Lighthouse of Marrowvale ");
    visitor.type(field("Year Released"), "1x9-4 9");
    visitor.expectText(field("Year Released"), "1949");
    visitor.type(field("Run Time"), "93");
    tour.picture("typing");
}

void turnWheels(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("Genre, rating and provider come from wheels: by tap, by arrow key, by finger");
    visitor.tap(field("Genre"));
    visitor.tap(wheelValue("Animation"));
    visitor.expectText(field("Genre"), "Animation");
    tour.picture("genre-wheel");
    visitor.tap(field("Rating"));
    visitor.expect(wheelValue("PG-13"));
    visitor.press(Qt::Key_Down);
    visitor.expectText(field("Rating"), "G");
    visitor.press(Qt::Key_Down);
    visitor.expectText(field("Rating"), "PG");
    visitor.reach(field("Provider"));
    visitor.tap(field("Provider"));
    visitor.expect(wheelValue("Hulu"));
    visitor.drawUp(wheelValue("Hulu"), 72);
    visitor.expectThat("The wheel chose no provider",
                       [&] { return !visitor.textOf(field("Provider")).isEmpty(); });
}

void pickDates(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    UserDefaults settings = UserDefaults::standard();
    const QDate today = QDate::currentDate();
    // Off the wheel's ends.
    const QDate otherMonth = today.month() > 6 ? today.addMonths(-1) : today.addMonths(1);

    tour.step("The date comes from wheels");
    visitor.reach(field("Date Watched"));
    visitor.tap(field("Date Watched"));
    visitor.expectText(field("Date Watched"), fullText(today));
    visitor.tap(wheelValue(QLocale().standaloneMonthName(otherMonth.month())));
    visitor.expectText(field("Date Watched"), fullText(otherMonth));
    tour.picture("date-wheels");
    visitor.tap(button("Done"));
    visitor.expectNo(button("Done"));

    tour.step("Or from a button that opens the month");
    settings.setBool(true, "UseDateCompact");
    visitor.tap(field("Date Watched"));
    visitor.tap(button(QLocale().toString(today, "MMM d, yyyy")));
    visitor.tap(button("12"));
    tour.picture("date-compact");
    visitor.expectText(field("Date Watched"), fullText(QDate(today.year(), today.month(), 12)));
    visitor.tap(button("Today"));
    visitor.expectText(field("Date Watched"), fullText(today));

    tour.step("Or from the month at once");
    settings.setBool(true, "UseDateInline");
    visitor.tap(field("Date Watched"));
    visitor.tap(button("Previous Month"));
    visitor.tap(button("15"));
    const QDate before = today.addMonths(-1);
    visitor.expectText(field("Date Watched"), fullText(QDate(before.year(), before.month(), 15)));
    tour.picture("date-inline");
    visitor.tap(button("Done"));
}

void completeForm(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("People and notes are typed; what notes cannot hold is refused");
    visitor.type(field("Actors"), "Ida Marlow, Tom Reed");
    visitor.type(field("Directors"), "Vera Lund");
    visitor.type(field("Producers"), "Otto Lund");
    visitor.type(field("Notes"), "Seen|in the open air!");
    visitor.expectText(field("Notes"), "Seenin the open air!");
    tour.picture("form-below");

    tour.step("The camera shows what it would take");
    visitor.reach(button("Camera"));
    visitor.tap(button("Camera"));
    visitor.expect(button("Take Photo"));
    tour.picture("camera");
    visitor.tap(button("Cancel"));
    visitor.expectNo(button("Take Photo"));
    // The field that has the keyboard again is scrolled into sight.
    visitor.settle();

    tour.step("The cover is pasted");
    QGuiApplication::clipboard()->setImage(TourCatalogue::paintedCover());
    visitor.reach(button("Paste"));
    visitor.tap(button("Paste"));
    tour.picture("form-above");
}

void findStored(Tour& tour)
{
    tour.step("The catalogue has the movie");
    const QString query = "SELECT movieName||'|'||yearReleased||'|'||runTime||'|'||genre||'|'||rating||'|'||"
                          "directors||'|'||notes FROM Movies";
    tour.visitor.expectThat("The catalogue has another movie: " + StoreFile::column(query).join("; "), [&] {
        return StoreFile::column(query) ==
               QStringList(
                   "The Lighthouse of Marrowvale|1949|93|Animation|PG|Vera Lund|Seenin the open air!");
    });
}

} // namespace

void addMovie(Tour& tour)
{
    tour.step("A movie is added");
    tour.choose("Add Movie");
    tour.visitor.expect(heading("Add Movie"));
    tour.picture("add-movie");
    refuseIncompleteMovie(tour);
    typeTexts(tour);
    turnWheels(tour);
    pickDates(tour);
    completeForm(tour);
    tour.visitor.tap(button("Save"));
    tour.visitor.expect(button("Menu"));
    findStored(tour);
}
