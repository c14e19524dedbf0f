#include "platform/foundation/UserDefaults.h"
#include "tour/Chapters.h"
#include "tour/Tour.h"

namespace {

const Control defaultDate = field("Default Date");

// As the settings write a date.
QString mediumText(const QDate& date)
{
    return QLocale().toString(date, "MMM d, yyyy");
}

QDate today()
{
    return QDate::currentDate();
}

void expectStored(Tour& tour, const QString& key, const QVariant& value)
{
    tour.visitor.expectThat(key + " is not stored as " + value.toString(),
                            [&] { return UserDefaults::standard().objectForKey(key) == value; });
}

void expectDefaultDate(Tour& tour, const QDate& date)
{
    tour.visitor.expectText(defaultDate, mediumText(date));
    expectStored(tour, "DefaultDate", mediumText(date));
}

void turnOnDefaultDate(Tour& tour)
{
    tour.visitor.expectNo(defaultDate);
    tour.visitor.tap(checkBox("Use Default Date"));
    tour.visitor.expect(defaultDate);
    tour.picture("settings-default-date");
}

void pickFromWheels(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    // Off the wheel's ends.
    const QDate otherMonth = today().month() > 6 ? today().addMonths(-1) : today().addMonths(1);
    tour.step("The default date comes from wheels");
    visitor.tap(checkBox("Use Date Wheel"));
    expectStored(tour, "UseDateWheel", true);
    visitor.tap(defaultDate);
    visitor.expect(button("Today"));
    tour.picture("settings-wheels");
    visitor.tap(wheelValue(QLocale().standaloneMonthName(otherMonth.month())));
    expectDefaultDate(tour, otherMonth);
    visitor.expectNo(button("Today"));
}

void pickFromMonth(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("Or from the month at once");
    visitor.tap(checkBox("Use Inline Date"));
    expectStored(tour, "UseDateInline", true);
    expectStored(tour, "UseDateWheel", false);
    visitor.tap(defaultDate);
    visitor.tap(button("Today"));
    expectDefaultDate(tour, today());
    visitor.expectNo(button("Today"));
    visitor.tap(defaultDate);
    visitor.expect(button("Previous Month"));
    tour.picture("settings-inline");
    visitor.tap(button("Previous Month"));
    visitor.tap(button("15"));
    const QDate before = today().addMonths(-1);
    expectDefaultDate(tour, QDate(before.year(), before.month(), 15));
    visitor.expectNo(button("Today"));
}

void pickFromButton(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    const QDate shown = QLocale().toDate(visitor.textOf(defaultDate), "MMM d, yyyy");
    tour.step("Or from a button that opens the month");
    visitor.tap(checkBox("Use Compact Date"));
    expectStored(tour, "UseDateCompact", true);
    expectStored(tour, "UseDateInline", false);
    visitor.tap(defaultDate);
    visitor.expect(button("Today"));
    tour.picture("settings-compact");
    visitor.tap(button(QLocale().toString(shown, "MMM d, yyyy")));
    tour.picture("settings-compact-open");
    visitor.tap(button("12"));
    expectDefaultDate(tour, QDate(shown.year(), shown.month(), 12));
    visitor.expectNo(button("Today"));
}

void leaveAsFound(Tour& tour)
{
    Visitor& visitor = tour.visitor;
    tour.step("Off and on again, the default date is empty");
    visitor.tap(checkBox("Use Default Date"));
    visitor.expectNo(defaultDate);
    expectStored(tour, "DefaultDate", "");
    visitor.tap(checkBox("Use Default Date"));
    visitor.expectText(defaultDate, "");
    visitor.tap(checkBox("Use Default Date"));
    expectStored(tour, "UseDefaultDate", false);
}

} // namespace

void changeSettings(Tour& tour)
{
    tour.step("The settings");
    tour.choose("Settings");
    tour.visitor.expect(heading("Settings"));
    tour.picture("settings");
    turnOnDefaultDate(tour);
    pickFromWheels(tour);
    pickFromMonth(tour);
    pickFromButton(tour);
    leaveAsFound(tour);
    tour.visitor.tap(button("Back"));
    tour.visitor.expect(button("Menu"));
}
