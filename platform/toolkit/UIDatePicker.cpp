#include "platform/toolkit/UIDatePicker.h"

#include "platform/foundation/DateFormatter.h"

#include <QLocale>
#include <QRegularExpression>

UIDatePicker::UIDatePicker(QObject* parent)
    : UIView(parent)
    , moment(QDateTime::currentDateTimeUtc())
{
}

QList<int> UIDatePicker::componentOrder()
{
    static const QRegularExpression quoted(QStringLiteral("'[^']*'"));
    const QString format = QLocale().dateFormat(QLocale::ShortFormat).remove(quoted);
    // By `Component`.
    static const QString letters = QStringLiteral("yMd");
    QList<int> order{0, 1, 2};
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return format.indexOf(letters[a]) < format.indexOf(letters[b]); });
    return order;
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
