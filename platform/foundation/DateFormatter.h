#pragma once

#include <QDateTime>
#include <QString>
#include <memory>
#include <optional>

enum class DateStyle { None, Short, Medium, Long, Full };

// Writes and reads dates, without their time of day, in the user's locale and time zone as they are when a
// style or a format is set.
//
// As created it has neither: it then writes every date as "" and understands no text. An explicit format wins
// over a style, whichever is set last. A copy is independent of its original.
class DateFormatter
{
public:
    void setDateStyle(DateStyle style);
    // `pattern` is a Unicode date pattern such as "yyyy MMMM".
    void setDateFormat(const QString& pattern);

    // "" for an invalid date.
    [[nodiscard]] QString stringFrom(const QDateTime& date) const;
    // The first instant of what `text` names; absent unless the whole text is such a date.
    [[nodiscard]] std::optional<QDateTime> dateFrom(const QString& text) const;

private:
    void open();

    DateStyle style = DateStyle::None;
    std::optional<QString> pattern;
    std::shared_ptr<void*> format; // ICU's; replaced, never changed, so copies may share it.
};

// `date` in the long style, such as "March 5, 2021", in the user's locale as it was at the first call.
[[nodiscard]] QString longDateText(const QDateTime& date);
