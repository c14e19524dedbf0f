#include "platform/foundation/Calendar.h"

#include "platform/foundation/Console.h"
#include "platform/foundation/UserLocale.h"

#include <unicode/ucal.h>

namespace {

// With valid dates ICU can only fail for want of its own data or of memory.
void requireCalendar(UErrorCode status)
{
    if (U_FAILURE(status))
        fatalError(QStringLiteral("Calendar failure ") + QString::fromLatin1(u_errorName(status)));
}

void moveCalendar(UCalendar* calendar, const QDateTime& date)
{
    UErrorCode status = U_ZERO_ERROR;
    ucal_setMillis(calendar, static_cast<UDate>(date.toMSecsSinceEpoch()), &status);
    requireCalendar(status);
}

QDateTime momentOf(UCalendar* calendar)
{
    UErrorCode status = U_ZERO_ERROR;
    const UDate moment = ucal_getMillis(calendar, &status);
    requireCalendar(status);
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(moment));
}

int fieldOf(UCalendar* calendar, UCalendarDateFields field)
{
    UErrorCode status = U_ZERO_ERROR;
    const int value = ucal_get(calendar, field, &status);
    requireCalendar(status);
    return value;
}

} // namespace

Calendar Calendar::current()
{
    const QString zone = UserLocale::timeZone();
    UErrorCode status = U_ZERO_ERROR;
    UCalendar* opened = ucal_open(QStringView(zone).utf16(), static_cast<int32_t>(zone.size()),
                                  UserLocale::identifier().constData(), UCAL_DEFAULT, &status);
    requireCalendar(status);
    return Calendar(std::shared_ptr<void*>(opened, ucal_close));
}

DateComponents Calendar::components(const QDateTime& date) const
{
    moveCalendar(calendar.get(), date);
    return {.year = fieldOf(calendar.get(), UCAL_YEAR),
            .month = fieldOf(calendar.get(), UCAL_MONTH) + 1,
            .day = fieldOf(calendar.get(), UCAL_DATE)};
}

QDateTime Calendar::dateByAddingDays(int days, const QDateTime& date) const
{
    moveCalendar(calendar.get(), date);
    UErrorCode status = U_ZERO_ERROR;
    ucal_add(calendar.get(), UCAL_DATE, days, &status);
    requireCalendar(status);
    return momentOf(calendar.get());
}

QDateTime Calendar::startOfYear(int year) const
{
    return startOfMonth(year, 1);
}

QDateTime Calendar::startOfMonth(int year, int month) const
{
    ucal_clear(calendar.get());
    ucal_set(calendar.get(), UCAL_YEAR, year);
    ucal_set(calendar.get(), UCAL_MONTH, month - 1);
    return momentOf(calendar.get());
}
