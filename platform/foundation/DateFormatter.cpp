#include "platform/foundation/DateFormatter.h"

#include "platform/foundation/UserLocale.h"

#include <array>
#include <unicode/udat.h>

namespace {

UDateFormatStyle icuStyle(DateStyle style)
{
    switch (style) {
    case DateStyle::Short:
        return UDAT_SHORT;
    case DateStyle::Medium:
        return UDAT_MEDIUM;
    case DateStyle::Long:
        return UDAT_LONG;
    case DateStyle::Full:
        return UDAT_FULL;
    case DateStyle::None:
        break;
    }
    return UDAT_NONE;
}

int32_t icuLength(QStringView text)
{
    return static_cast<int32_t>(text.size());
}

} // namespace

void DateFormatter::setDateStyle(DateStyle newStyle)
{
    style = newStyle;
    open();
}

void DateFormatter::setDateFormat(const QString& newPattern)
{
    pattern = newPattern;
    open();
}

void DateFormatter::open()
{
    format.reset();
    if (style == DateStyle::None && !pattern)
        return;
    const QString zone = UserLocale::timeZone();
    const QStringView explicitPattern = pattern ? *pattern : QStringView();
    UErrorCode status = U_ZERO_ERROR;
    UDateFormat* opened =
        udat_open(pattern ? UDAT_PATTERN : UDAT_NONE, pattern ? UDAT_PATTERN : icuStyle(style),
                  UserLocale::identifier().constData(), QStringView(zone).utf16(), icuLength(zone),
                  explicitPattern.utf16(), icuLength(explicitPattern), &status);
    if (U_FAILURE(status))
        return;
    udat_setLenient(opened, UBool{0});
    format = std::shared_ptr<void*>(opened, udat_close);
}

QString DateFormatter::stringFrom(const QDateTime& date) const
{
    if (!format || !date.isValid())
        return QString();
    std::array<char16_t, 256> text{}; // The longest full date of any locale has less than 100.
    UErrorCode status = U_ZERO_ERROR;
    const auto length = udat_format(format.get(), static_cast<UDate>(date.toMSecsSinceEpoch()), text.data(),
                                    static_cast<int32_t>(text.size()), nullptr, &status);
    return U_SUCCESS(status) ? QString::fromUtf16(text.data(), length) : QString();
}

std::optional<QDateTime> DateFormatter::dateFrom(const QString& text) const
{
    if (!format)
        return std::nullopt;
    int32_t end = 0;
    UErrorCode status = U_ZERO_ERROR;
    const UDate date = udat_parse(format.get(), QStringView(text).utf16(), icuLength(text), &end, &status);
    if (U_FAILURE(status) || end != text.size())
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(date));
}

QString longDateText(const QDateTime& date)
{
    // Making a formatter costs more than using it, and every row of a list needs one.
    static const DateFormatter formatter = [] {
        DateFormatter longStyle;
        longStyle.setDateStyle(DateStyle::Long);
        return longStyle;
    }();
    return formatter.stringFrom(date);
}
