#include "tour/Chapters.h"
#include "tour/StoreFile.h"
#include "tour/Tour.h"

namespace {

const QStringList entries{"Movie List", "Add Movie",       "Group By",      "Settings",
                          "Print",      "Reference Lists", "Import/Export", "Rate/Share"};

} // namespace

void seeFirstLaunch(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("The home menu starts folded in");
    visitor.expect(button("Menu"));
    for (const QString& entry : entries)
        visitor.expectNo(button(entry));
    tour.picture("home");

    tour.step("Its button folds eight entries out, and in again");
    visitor.tap(button("Menu"));
    for (const QString& entry : entries)
        visitor.expect(button(entry));
    tour.picture("menu");
    visitor.tap(button("Menu"));
    for (const QString& entry : entries)
        visitor.expectNo(button(entry));

    tour.step("The reference lists have their first values");
    visitor.expectThat("There are not 22 genres",
                       [] { return StoreFile::number("SELECT count(*) FROM Genres") == 22; });
    visitor.expectThat("There are not 4 ratings",
                       [] { return StoreFile::number("SELECT count(*) FROM Ratings") == 4; });
    visitor.expectThat("There are not 6 providers",
                       [] { return StoreFile::number("SELECT count(*) FROM Providers") == 6; });
}
