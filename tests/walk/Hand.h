#pragma once

#include "storyboard/MainWindow.h"
#include "tests/support/ManualQueue.h"

#include <QAccessible>
#include <QHash>
#include <QPointer>
#include <QQuickItem>

class QPointingDevice;

// Something in the window as assistive technology sees it, at the moment of looking.
struct Seen
{
    QPointer<QQuickItem> item;
    QAccessible::Role role = QAccessible::NoRole;
    QString name;
    QAccessible::State state;
    QRect place;
    // The part that nothing cuts off; empty: out of sight.
    QRect part;
    bool inPopup = false;

    [[nodiscard]] bool isPressable() const;
    // A row of a table, not a value of a wheel.
    [[nodiscard]] bool isRow() const;
    [[nodiscard]] bool isSearchField() const;
    // A field that takes only numbers.
    [[nodiscard]] bool isNumber() const;
    // For people, in quotes.
    [[nodiscard]] QString shortName() const;
};

// Who uses the window: looks, taps, draws, types. Time moves only while a hand lets it pass.
class Hand
{
public:
    enum class Way { Finger, Mouse, AssistiveTechnology };

    Hand(MainWindow& window, ManualQueue& queue);

    // Everything that is not hidden, behind a popup too.
    [[nodiscard]] std::vector<Seen> everything() const;
    // The same; while a popup is open, only what it holds.
    [[nodiscard]] std::vector<Seen> look() const;
    // Returns everything that `look` finds and that can be touched.
    [[nodiscard]] std::vector<Seen> inSight() const;
    [[nodiscard]] std::vector<Seen> rowsInSight() const;

    void pass(int milliseconds);
    // Until nothing moves, six seconds at the most.
    void settle();

    void tap(const Seen& control, Way way);
    void longPress(const QPoint& place);
    void rightClick(const QPoint& place);
    void drag(const QPoint& from, const QPoint& to, int duration);
    // The same while a second finger taps at `other`.
    void dragWhileTapping(const QPoint& from, const QPoint& to, const QPoint& other);
    void pinch(const QPoint& centre, int from, int to);
    void turnWheel(const QPoint& place, int notches);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers);
    void type(const QString& text);

private:
    [[nodiscard]] bool isMoving() const;

    MainWindow& window;
    ManualQueue& queue;
    QPointingDevice* finger;
};

// The text that an editable control holds.
[[nodiscard]] QString textOf(const Seen& editable);
// The texts of all editable controls, by their names.
[[nodiscard]] QHash<QString, QString> formOf(const std::vector<Seen>& all);
