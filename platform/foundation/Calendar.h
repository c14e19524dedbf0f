#pragma once

#include <QDateTime>
#include <memory>

// What a calendar calls a day; month 1 is the first one.
struct DateComponents
{
    int year = 0;
    int month = 0;
    int day = 0;

    friend bool operator==(const DateComponents&, const DateComponents&) = default;
};

// Reckons in the calendar and the time zone that were the user's when current() was called. All dates given
// must be valid.
class Calendar
{
public:
    [[nodiscard]] static Calendar current();

    [[nodiscard]] DateComponents components(const QDateTime& date) const;
    // The same time of day `days` days later (earlier when negative): not always a multiple of 24 hours.
    [[nodiscard]] QDateTime dateByAddingDays(int days, const QDateTime& date) const;
    // The first instant of `year`, or of a month in it.
    [[nodiscard]] QDateTime startOfYear(int year) const;
    [[nodiscard]] QDateTime startOfMonth(int year, int month) const;

private:
    explicit Calendar(std::shared_ptr<void*> icuCalendar)
        : calendar(std::move(icuCalendar))
    {
    }

    std::shared_ptr<void*> calendar; // ICU's, used as a scratch pad: each question sets it anew.
};
