#include "tour/Chapters.h"
#include "tour/StoreFile.h"
#include "tour/Tour.h"

namespace {

void openTheLighthouse(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    visitor.type(field("Search by Movie Name"), "lighthouse");
    visitor.expectThat("The search does not end at one movie",
                       [&] { return visitor.rowNames().size() == 1; });
    visitor.settle();
    visitor.tap(row(visitor.rowNames().constFirst()));
    visitor.expect(heading("Update Movie"));
}

} // namespace

void editMovie(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("A row opens its movie");
    tour.choose("Movie List");
    openTheLighthouse(tour);
    tour.picture("update-movie");

    tour.step("Its cover is seen large");
    visitor.tap(button("Magnify"));
    visitor.expect(heading("Front Cover"));
    tour.picture("front-cover");
    visitor.press(Qt::Key_Plus);
    visitor.press(Qt::Key_Right);
    visitor.tap(button("Back"));
    visitor.expect(heading("Update Movie"));

    tour.step("Removing it asks first");
    visitor.tap(button("Remove"));
    visitor.expect(text("Do You Want to Remove This Image?"));
    tour.picture("remove-cover");
    visitor.tap(button("No"));

    tour.step("A change is saved, and the list is back");
    visitor.type(field("Directors"), ", Ida Lund");
    visitor.tap(button("Save"));
    visitor.expect(heading("Movie List"));
    visitor.expectThat("The change is not in the catalogue", [&] {
        return StoreFile::number("SELECT COUNT(*) FROM Movies WHERE directors LIKE '%Ida Lund%'") == 1;
    });
    visitor.tap(button("Back"));
    visitor.expect(button("Menu"));
}
