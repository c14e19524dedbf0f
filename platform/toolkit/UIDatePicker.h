#pragma once

#include "platform/toolkit/UIView.h"

#include <QDate>
#include <QDateTime>
#include <QList>

// A picker of a day. The time of day of `date` stays what it was when a day is picked. Days are those of the
// Gregorian calendar in the local time zone.
class UIDatePicker : public UIView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(int year READ year NOTIFY changed FINAL)
    Q_PROPERTY(int month READ month NOTIFY changed FINAL)
    Q_PROPERTY(int day READ day NOTIFY changed FINAL)
    // In the user's locale, such as "Mar 5, 2021".
    Q_PROPERTY(QString dateText READ dateText NOTIFY changed FINAL)
    // Values of `Component`: year, month and day as the locale's short date format orders them, such as
    // month, day, year.
    Q_PROPERTY(QList<int> componentOrder READ componentOrder CONSTANT FINAL)
    Q_PROPERTY(Style preferredDatePickerStyle READ preferredDatePickerStyle NOTIFY changed FINAL)
    Q_PROPERTY(double width READ width NOTIFY changed FINAL)
    Q_PROPERTY(double height READ height NOTIFY changed FINAL)

public:
    enum class Style { Automatic, Wheels, Compact, Inline };
    Q_ENUM(Style)
    enum class Component { Year, Month, Day };
    Q_ENUM(Component)
    enum class Mode { DateAndTime, Date };

    // Shows the current moment.
    explicit UIDatePicker(QObject* parent = nullptr);

    [[nodiscard]] QDateTime date() const { return moment; }
    // Not told as a change by the user. `value` must be valid.
    void setDate(const QDateTime& value) { assign(moment, value); }

    [[nodiscard]] int year() const { return localDay().year(); }
    [[nodiscard]] int month() const { return localDay().month(); }
    [[nodiscard]] int day() const { return localDay().day(); }
    [[nodiscard]] QString dateText() const;
    // Always all three.
    [[nodiscard]] static QList<int> componentOrder();

    [[nodiscard]] Style preferredDatePickerStyle() const { return style; }
    void setPreferredDatePickerStyle(Style value) { assign(style, value); }

    [[nodiscard]] Mode datePickerMode() const { return mode; }
    void setDatePickerMode(Mode value) { assign(mode, value); }

    // Points; 0 leaves the size to the layout.
    [[nodiscard]] double width() const { return widthValue; }
    [[nodiscard]] double height() const { return heightValue; }
    void setSize(double width, double height);

    // The user picked a day. A day past the month's end (February 31st of a turned wheel) becomes its last
    // day; a year outside 1 to 9999 does nothing.
    Q_INVOKABLE void pick(int year, int month, int day);

Q_SIGNALS:
    void valueChanged();

private:
    [[nodiscard]] QDate localDay() const { return moment.toLocalTime().date(); }

    QDateTime moment;
    Style style = Style::Automatic;
    Mode mode = Mode::DateAndTime;
    double widthValue = 0;
    double heightValue = 0;
};
