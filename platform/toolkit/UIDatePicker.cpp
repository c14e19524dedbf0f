#include "platform/toolkit/UIDatePicker.h"

#include "platform/foundation/DateFormatter.h"

UIDatePicker::UIDatePicker(QObject* parent)
    : UIView(parent)
    , moment(QDateTime::currentDateTimeUtc())
{
}

void UIDatePicker::setSize(double width, double height)
{
    assign(widthValue, width);
    assign(heightValue, height);
}

QString UIDatePicker::dateText() const
{
    DateFormatter formatter;
    formatter.setDateStyle(DateStyle::Medium);
    return formatter.stringFrom(moment);
}

void UIDatePicker::pick(int year, int month, int day)
{
    const QDate first(year, month, 1);
    if (!first.isValid() || year < 1 || year > 9999 || day < 1)
        return;
    const QDate picked(year, month, std::min(day, first.daysInMonth()));
    if (picked == localDay())
        return;
    setDate(QDateTime(picked, moment.toLocalTime().time()).toUTC());
    Q_EMIT valueChanged();
}
