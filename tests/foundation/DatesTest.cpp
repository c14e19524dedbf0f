#include "platform/foundation/Calendar.h"
#include "platform/foundation/DateDescription.h"
#include "platform/foundation/DateFormatter.h"

#include <QLocale>
#include <QTimeZone>

namespace {

QDateTime utc(int year, int month, int day, int hour = 0, int minute = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute), Qt::UTC);
}

// Tests run in New York, where this moment is still in the evening before.
const QDateTime lateOnMarch5 = utc(2021, 3, 6, 3, 30);

DateFormatter formatterOf(DateStyle style)
{
    DateFormatter formatter;
    formatter.setDateStyle(style);
    return formatter;
}

class InLocale
{
public:
    explicit InLocale(const char* name) { QLocale::setDefault(QLocale(QString::fromLatin1(name))); }
    ~InLocale() { QLocale::setDefault(previous); }

private:
    QLocale previous;
};

} // namespace

TEST(DateFormatter, WritesEachStyleInTheUsersLocaleAndZone)
{
    const std::tuple<const char*, DateStyle, const char*> cases[] = {
        {"en_US", DateStyle::Full, "Friday, March 5, 2021"},
        {"en_US", DateStyle::Long, "March 5, 2021"},
        {"en_US", DateStyle::Medium, "Mar 5, 2021"},
        {"en_US", DateStyle::Short, "3/5/21"},
        {"en_US", DateStyle::None, ""},
        {"en_GB", DateStyle::Long, "5 March 2021"},
        {"de_DE", DateStyle::Medium, "05.03.2021"},
        {"fr_FR", DateStyle::Full, "vendredi 5 mars 2021"},
    };
    for (const auto& [locale, style, wanted] : cases) {
        const InLocale there(locale);
        EXPECT_EQ(formatterOf(style).stringFrom(lateOnMarch5), QString::fromUtf8(wanted));
    }
}

TEST(DateFormatter, ReadsWhatItWritesAndNothingElse)
{
    for (const auto style : {DateStyle::Full, DateStyle::Long, DateStyle::Medium}) {
        const auto formatter = formatterOf(style);
        EXPECT_EQ(formatter.dateFrom(formatter.stringFrom(lateOnMarch5)), utc(2021, 3, 5, 5));
    }
    const auto medium = formatterOf(DateStyle::Medium);
    for (const char* text : {"", "Mar 5, 2021 ", "Feb 30, 2021", "yesterday", "2021-03-06 03:30:00 +0000"})
        EXPECT_EQ(medium.dateFrom(QString::fromUtf8(text)), std::nullopt) << text;
}

TEST(DateDescription, IsAlwaysUtcInWesternDigits)
{
    const InLocale there("ar_EG");
    EXPECT_EQ(descriptionOf(lateOnMarch5.toLocalTime()), QStringLiteral("2021-03-06 03:30:00 +0000"));
    EXPECT_EQ(descriptionOf(utc(987, 1, 2, 23, 59)), QStringLiteral("0987-01-02 23:59:00 +0000"));
}
