#include "tour/Chapters.h"
#include "tour/StoreFile.h"
#include "tour/Tour.h"

namespace {

struct Order
{
    QString entry;
    QString column;
    QString label;
    QString searched;
};

const Order orders[] = {
    {"By Genre", "genre", "Genre: ", "com"},
    {"By Year", "yearReleased", "Year Released: ", "19"},
    {"By Rating", "rating", "Rating: ", "pg"},
    {"By Movie Name", "movieName", "Movie Name: ", "man"},
};

int countWhere(const QString& condition)
{
    return StoreFile::number("SELECT count(*) FROM Movies WHERE " + condition);
}

QString headerOf(int movies)
{
    return QString("# Movies = %1").arg(movies);
}

// The first line of the uppermost row when the movies run in that order.
QString firstLine(const Order& order, const QString& direction)
{
    return order.label +
           StoreFile::column(QString("SELECT %1 FROM Movies ORDER BY %1 %2, movieName %2 LIMIT 1")
                                 .arg(order.column, direction))
               .value(0);
}

void expectUppermost(Tour& tour, const QString& line)
{
    tour.visitor.expectThat("The first row is not \"" + line + "\"",
                            [&] { return tour.visitor.rowNames().value(0).section('\n', 0, 0) == line; });
}

void chooseOrder(Tour& tour, const Order& order)
{
    tour.visitor.tap(button("Menu"));
    tour.visitor.expect(choice(order.entry));
    tour.visitor.tap(choice(order.entry));
    tour.visitor.expectNo(choice(order.entry));
}

void search(Tour& tour, const Order& order)
{
    Visitor& visitor = tour.visitor;
    const int found = countWhere(QString("lower(%1) LIKE '%%2%'").arg(order.column, order.searched));
    tour.step(QString("%1, \"%2\" finds %3 movies").arg(order.entry, order.searched).arg(found));
    visitor.type(field("Search by " + order.entry.mid(3)), order.searched);
    visitor.expect(text(QString("# Movies = %1 of %2").arg(found).arg(countWhere("1"))));
    if (order.column == "movieName")
        tour.picture("search");
    visitor.tap(button("Clear"));
    visitor.expect(text(headerOf(countWhere("1"))));
}

void sortBothWays(Tour& tour, const Order& order)
{
    tour.step(order.entry + ", downwards and upwards");
    chooseOrder(tour, order);
    expectUppermost(tour, firstLine(order, "DESC"));
    tour.picture("list-" + order.entry.toLower().replace(' ', '-'));
    chooseOrder(tour, order);
    expectUppermost(tour, firstLine(order, "ASC"));
}

void deleteMovies(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    const int before = countWhere("1");
    tour.visitor.tap(button("Sort"));

    tour.step("A row drawn aside offers to delete its movie");
    const QString first = visitor.rowNames().value(0);
    visitor.swipe(row(first), 0.3);
    visitor.expect(button("delete"));
    tour.picture("swipe");
    visitor.tap(button("delete"));
    visitor.expect(text(headerOf(before - 1)));
    visitor.expectNo(row(first));

    tour.step("Drawn all the way it deletes at once");
    visitor.swipe(row(visitor.rowNames().value(0)), 0.8);
    visitor.expect(text(headerOf(before - 2)));
    visitor.expectThat("The file still has them", [&] { return countWhere("1") == before - 2; });
}

} // namespace

void browseMovies(Tour& tour)
{
    tour.step("The list shows every movie, the last title first");
    tour.choose("Movie List");
    tour.visitor.expect(heading("Movie List"));
    tour.visitor.expect(text(headerOf(countWhere("1"))));
    expectUppermost(tour, firstLine(orders[3], "DESC"));
    tour.picture("movie-list");
    for (const Order& order : orders) {
        sortBothWays(tour, order);
        search(tour, order);
    }
    tour.visitor.tap(button("Menu"));
    tour.visitor.expect(text("Sort By"));
    tour.picture("sort-menu");
    tour.visitor.press(Qt::Key_Escape);
    tour.visitor.expectNo(text("Sort By"));
    deleteMovies(tour);
    tour.visitor.tap(button("Back"));
    tour.visitor.expect(button("Menu"));
}
