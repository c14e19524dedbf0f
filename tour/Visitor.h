#pragma once

#include "tour/Control.h"

#include <QQuickView>
#include <functional>

class QPointingDevice;

// Someone in front of the window, who knows only what can be seen and touched: finds controls by role and
// name, uses mouse, finger and keyboard, and waits for what moves to come to rest. What isn't so after some
// minutes is a TourError. Where the fake clock runs, time passes only while the visitor waits, as fast as the
// machine can.
class Visitor
{
public:
    // Waits for the window to have the keyboard.
    explicit Visitor(QQuickView& window);

    // Exactly one such control is in sight.
    void expect(const Control& control);
    void expectNo(const Control& control);
    void expectText(const Control& editable, const QString& shown);
    void expectThat(const QString& what, const std::function<bool()>& holds);

    void tap(const Control& control);
    // Taps where the keyboard can come in, then types.
    void type(const Control& editable, const QString& typed);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // Draws a row to the left with a finger, by part of the window's width.
    void swipe(const Control& control, double part);
    // Draws what stands there up with a finger, by so many pixels.
    void drawUp(const Control& control, int pixels);
    // Scrolls until the control can be tapped.
    void reach(const Control& control);

    // What a control in sight holds; empty where there is no such control.
    [[nodiscard]] QString textOf(const Control& editable);
    // The names of the rows in sight, the uppermost first.
    [[nodiscard]] QStringList rowNames();

    // Until nothing moves.
    void settle();
    // What the window shows, once nothing moves and the pointer is out of the way.
    [[nodiscard]] QImage look();

private:
    [[nodiscard]] std::vector<QAccessibleInterface*> inSight(const Control& control);
    [[nodiscard]] QRect placeOf(const Control& control);
    // The part of it that nothing cuts off, in the window; empty: none.
    [[nodiscard]] QRect visiblePart(QAccessibleInterface& seen) const;
    [[nodiscard]] bool isBelowSight(const Control& control);
    void pass(int milliseconds);
    void drag(const QPoint& from, const QPoint& to);

    QQuickView& window;
    QPointingDevice* finger;
};
