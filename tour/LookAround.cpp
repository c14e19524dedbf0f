#include "tour/Chapters.h"
#include "tour/Tour.h"

namespace {

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
    useKeyboard(tour);
}
