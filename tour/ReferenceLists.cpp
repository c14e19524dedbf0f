#include "tour/Chapters.h"
#include "tour/StoreFile.h"
#include "tour/Tour.h"

namespace {

const Control genreField = field("Genre");

int storedGenres(const QString& condition)
{
    return StoreFile::number("SELECT count(*) FROM Genres WHERE " + condition);
}

void expectGenres(Tour& tour, int count)
{
    tour.visitor.expect(text(QString("# Genre = %1").arg(count)));
}

void addGenre(Tour& tour, const QString& genre)
{
    Visitor& visitor = tour.visitor;
    tour.step("A new genre is typed at once, without a tap into its field");
    visitor.tap(button("Add Genre"));
    visitor.expect(heading("Add Genre"));
    visitor.press(Qt::Key_Return);
    visitor.expect(text("Genre not Entered"));
    tour.picture("reference-alert");
    visitor.tap(button("OK"));
    visitor.expectNo(text("Genre not Entered"));
    for (const QChar letter : genre)
        visitor.press(static_cast<Qt::Key>(letter.toUpper().unicode()));
    visitor.expectText(genreField, genre);
    tour.picture("reference-add");
    visitor.tap(button("Save"));
    visitor.expect(heading("Genres"));
}

void renameGenre(Tour& tour, const QString& from, const QString& addition)
{
    Visitor& visitor = tour.visitor;
    tour.step("A tap renames it");
    visitor.tap(row(from));
    visitor.expect(heading("Edit Genre"));
    visitor.expectText(genreField, from);
    visitor.type(genreField, addition);
    visitor.expectText(genreField, from + addition);
    tour.picture("reference-edit");
    visitor.press(Qt::Key_Return);
    visitor.expect(heading("Genres"));
}

void deleteGenre(Tour& tour, const QString& genre)
{
    Visitor& visitor = tour.visitor;
    tour.step("Drawn aside it can be deleted");
    visitor.swipe(row(genre), 0.3);
    visitor.expect(button("delete"));
    tour.picture("reference-swipe");
    visitor.tap(button("delete"));
    visitor.expectNo(row(genre));
}

void keepGenres(Tour& tour)
{
    const int before = storedGenres("1");
    tour.visitor.tap(button("Genres"));
    expectGenres(tour, before);
    tour.picture("reference-genres");
    addGenre(tour, "3d");
    expectGenres(tour, before + 1);
    renameGenre(tour, "3d", " shorts");
    tour.visitor.expectThat("The genre is not renamed",
                            [] { return storedGenres("genre = '3d shorts'") == 1; });
    deleteGenre(tour, "3d shorts");
    expectGenres(tour, before);
    tour.visitor.expectThat("The genre is not deleted", [&] { return storedGenres("1") == before; });
    tour.visitor.tap(button("Back"));
}

void lookAtOthers(Tour& tour)
{
    tour.step("Ratings and providers are kept alike");
    for (const QString& list : {QString("Ratings"), QString("Providers")}) {
        const int count = StoreFile::number("SELECT count(*) FROM " + list);
        tour.visitor.tap(button(list));
        tour.visitor.expect(text(QString("# %1 = %2").arg(list).arg(count)));
        tour.picture("reference-" + list.toLower());
        tour.visitor.tap(button("Back"));
    }
}

} // namespace

void keepReferenceLists(Tour& tour)
{
    tour.step("The reference lists");
    tour.choose("Reference Lists");
    tour.visitor.expect(heading("Reference Lists"));
    tour.picture("reference-lists");
    keepGenres(tour);
    lookAtOthers(tour);
    tour.visitor.tap(button("Back"));
    tour.visitor.expect(button("Menu"));
}
