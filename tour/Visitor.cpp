#include "tour/Visitor.h"

#include "tour/AccessibleTree.h"
#include "tour/Drag.h"
#include "tour/FakeClock.h"
#include "tour/TourError.h"

#include <QQuickItem>
#include <QThread>
#include <QtTest>

namespace {

// Milliseconds.
constexpr int frame = 20;
constexpr int glance = 60;
constexpr int longestWait = 200'000;

QString describe(const Control& control)
{
    static const QMap<QAccessible::Role, QString> kinds{
        {QAccessible::Button, "button"},      {QAccessible::MenuItem, "choice"},
        {QAccessible::EditableText, "field"}, {QAccessible::Heading, "heading"},
        {QAccessible::StaticText, "text"},    {QAccessible::ListItem, "row or value"},
        {QAccessible::CheckBox, "switch"},
    };
    return kinds.value(control.role) + " \"" + control.name + "\"";
}

bool cutsOff(const QQuickItem& item)
{
    return item.clip() || item.inherits("QQuickFlickable");
}

// Not boundingRect(): of a text that is no more than its letters.
QRectF placeInScene(const QQuickItem& item)
{
    return item.mapRectToScene(QRectF(QPointF(), item.size()));
}

} // namespace

Visitor::Visitor(QQuickView& window)
    : window(window)
    , finger(QTest::createTouchDevice())
{
    window.requestActivate();
    expectThat("The window does not get the keyboard", [&] { return window.isActive(); });
}

QRect Visitor::visiblePart(QAccessibleInterface& seen) const
{
    auto* item = qobject_cast<QQuickItem*>(seen.object());
    if (item == nullptr || seen.state().invisible)
        return {};
    QRectF part(QPointF(), QSizeF(window.size()));
    part &= placeInScene(*item);
    for (QQuickItem* above = item->parentItem(); above != nullptr; above = above->parentItem())
        if (cutsOff(*above))
            part &= placeInScene(*above);
    return part.toAlignedRect();
}

std::vector<QAccessibleInterface*> Visitor::inSight(const Control& control)
{
    std::vector<QAccessibleInterface*> found;
    forEachAccessible(window, [&](QAccessibleInterface& seen) {
        if (control.fits(seen) && !visiblePart(seen).isEmpty())
            found.push_back(&seen);
    });
    return found;
}

void Visitor::expectThat(const QString& what, const std::function<bool()>& holds)
{
    for (int waited = 0; !holds(); waited += frame) {
        if (waited >= longestWait)
            throw TourError(what);
        pass(frame);
    }
}

// Other threads work in real time: each frame leaves them some.
void Visitor::pass(int milliseconds)
{
    if (!FakeClock::isStarted())
        return QTest::qWait(milliseconds);
    for (int left = milliseconds; left > 0; left -= frame) {
        FakeClock::advance(std::chrono::milliseconds(frame));
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(1);
    }
}

void Visitor::expect(const Control& control)
{
    expectThat("There is not one " + describe(control), [&] { return inSight(control).size() == 1; });
}

void Visitor::expectNo(const Control& control)
{
    expectThat("There is still a " + describe(control), [&] { return inSight(control).empty(); });
}

void Visitor::expectText(const Control& editable, const QString& shown)
{
    reach(editable);
    expectThat("The " + describe(editable) + " does not show \"" + shown + "\" but \"" + textOf(editable) +
                   "\"",
               [&] { return textOf(editable) == shown; });
}

QString Visitor::textOf(const Control& editable)
{
    const auto found = inSight(editable);
    if (found.size() != 1 || found.front()->textInterface() == nullptr)
        return {};
    QAccessibleTextInterface& content = *found.front()->textInterface();
    return content.text(0, content.characterCount());
}

QRect Visitor::placeOf(const Control& control)
{
    expect(control);
    settle();
    expect(control);
    return visiblePart(*inSight(control).front());
}

void Visitor::reach(const Control& control)
{
    constexpr int least = 20;
    const auto isReached = [&] {
        const auto found = inSight(control);
        return found.size() == 1 && visiblePart(*found.front()).height() >= least;
    };
    // A finger beside the column moves the page.
    const QPoint low(6, window.height() * 2 / 5);
    const QPoint high(6, window.height() / 5);
    for (int turn = 0; turn < 10 && !isReached(); ++turn) {
        const bool below = isBelowSight(control);
        drag(below ? low : high, below ? high : low);
        settle();
    }
    expectThat("The " + describe(control) + " cannot be reached", isReached);
}

bool Visitor::isBelowSight(const Control& control)
{
    const int middle = window.mapToGlobal(QPoint(0, window.height() / 2)).y();
    bool below = false;
    forEachAccessible(window, [&](QAccessibleInterface& seen) {
        below = below || (control.fits(seen) && !seen.state().invisible && seen.rect().center().y() > middle);
    });
    return below;
}

void Visitor::tap(const Control& control)
{
    QTest::mouseClick(&window, Qt::LeftButton, {}, placeOf(control).center());
}

void Visitor::type(const Control& editable, const QString& typed)
{
    reach(editable);
    tap(editable);
    for (const QChar character : typed)
        QTest::sendKeyEvent(QTest::Click, &window, Qt::Key_unknown, QString(character), Qt::NoModifier);
}

void Visitor::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    settle();
    QTest::keyClick(&window, key, modifiers);
}

void Visitor::swipe(const Control& control, double part)
{
    const QRect place = placeOf(control);
    const QPoint from(place.right() - 24, place.center().y());
    drag(from, from - QPoint(static_cast<int>(place.width() * part), 0));
}

void Visitor::drawUp(const Control& control, int pixels)
{
    const QPoint from = placeOf(control).center();
    drag(from, from - QPoint(0, pixels));
}

void Visitor::drag(const QPoint& from, const QPoint& to)
{
    constexpr int moves = 12;
    dragFinger(window, finger, from, to, moves, [this](int frames) { pass(frames * frame); });
}

QStringList Visitor::rowNames()
{
    QMap<int, QString> byHeight;
    forEachAccessible(window, [&](QAccessibleInterface& seen) {
        const QRect part = visiblePart(seen);
        if (seen.role() == QAccessible::ListItem && !part.isEmpty())
            byHeight.insert(part.top(), seen.text(QAccessible::Name));
    });
    return byHeight.values();
}

void Visitor::settle()
{
    QImage before;
    expectThat("The window does not come to rest", [&] {
        pass(glance);
        const QImage now = window.grabWindow();
        return std::exchange(before, now) == now;
    });
}

QImage Visitor::look()
{
    QTest::mouseMove(&window, QPoint(1, 1));
    settle();
    return window.grabWindow();
}
