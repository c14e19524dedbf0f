#include "tests/walk/Hand.h"

#include "tour/AccessibleTree.h"
#include "tour/Drag.h"
#include "tour/FakeClock.h"

#include <QtTest>

namespace {

constexpr int frame = 20;

bool cutsOff(const QQuickItem& item)
{
    return item.clip() || item.inherits("QQuickFlickable");
}

QRectF placeOf(const QQuickItem& item)
{
    return item.mapRectToScene(QRectF(QPointF(), item.size()));
}

Seen seenOf(QAccessibleInterface& seen, QQuickItem& item, const QSize& window)
{
    Seen found{&item, seen.role(), seen.text(QAccessible::Name), seen.state(), placeOf(item).toAlignedRect(),
               {},    false};
    QRectF part = placeOf(item) & QRectF(QPointF(), QSizeF(window));
    for (QQuickItem* above = item.parentItem(); above != nullptr; above = above->parentItem()) {
        if (cutsOff(*above))
            part &= placeOf(*above);
        found.inPopup = found.inPopup || above->inherits("QQuickOverlay");
    }
    found.part = part.toAlignedRect();
    return found;
}

// A control below a spinner can't be touched.
void coverBySpinners(std::vector<Seen>& all)
{
    QList<QRect> covered;
    for (const Seen& seen : all)
        if (seen.role == QAccessible::ProgressBar &&
            QByteArray(seen.item->parentItem()->metaObject()->className()).startsWith("ActivityIndicator"))
            covered.append(placeOf(*seen.item->parentItem()).toAlignedRect());
    for (Seen& seen : all)
        for (const QRect& place : covered)
            if (place.contains(seen.part.center()))
                seen.part = {};
}

bool isMovingIn(const QQuickItem& item)
{
    const QList<QQuickItem*> children = item.childItems();
    return item.isVisible() && (item.property("busy").toBool() || item.property("moving").toBool() ||
                                std::any_of(children.begin(), children.end(),
                                            [](const QQuickItem* child) { return isMovingIn(*child); }));
}

} // namespace

bool Seen::isRow() const
{
    return role == QAccessible::ListItem && !item.isNull() && item->property("spokenName").isValid();
}

bool Seen::isSearchField() const
{
    return role == QAccessible::EditableText &&
           (name.startsWith("Search by") || name.startsWith("Sort and Search"));
}

bool Seen::isNumber() const
{
    return name == "Year Released" || name == "Run Time";
}

bool Seen::isPressable() const
{
    static const QSet<int> roles{QAccessible::Button, QAccessible::MenuItem, QAccessible::CheckBox,
                                 QAccessible::PageTab, QAccessible::EditableText};
    return !state.disabled && (roles.contains(role) || isRow());
}

QString Seen::shortName() const
{
    return '"' + name.section('\n', 0, 1).replace('\n', " / ") + '"';
}

QString textOf(const Seen& editable)
{
    return editable.item ? editable.item->property("text").toString() : QString();
}

QHash<QString, QString> formOf(const std::vector<Seen>& all)
{
    QHash<QString, QString> texts;
    for (const Seen& seen : all)
        if (seen.role == QAccessible::EditableText)
            texts.insert(seen.name, textOf(seen));
    return texts;
}

Hand::Hand(MainWindow& window, ManualQueue& queue)
    : window(window)
    , queue(queue)
    , finger(QTest::createTouchDevice())
{
}

std::vector<Seen> Hand::everything() const
{
    std::vector<Seen> found;
    forEachAccessible(window, [&](QAccessibleInterface& seen) {
        auto* item = qobject_cast<QQuickItem*>(seen.object());
        if (item != nullptr && !seen.state().invisible && item->isVisible())
            found.push_back(seenOf(seen, *item, window.size()));
    });
    coverBySpinners(found);
    return found;
}

std::vector<Seen> Hand::look() const
{
    std::vector<Seen> found = everything();
    if (std::any_of(found.begin(), found.end(), [](const Seen& seen) { return seen.inPopup; }))
        std::erase_if(found, [](const Seen& seen) { return !seen.inPopup; });
    return found;
}

std::vector<Seen> Hand::inSight() const
{
    std::vector<Seen> found = look();
    std::erase_if(found, [](const Seen& seen) { return seen.part.isEmpty(); });
    return found;
}

std::vector<Seen> Hand::rowsInSight() const
{
    constexpr int leastHeight = 20;
    std::vector<Seen> rows = inSight();
    std::erase_if(rows, [](const Seen& seen) { return !seen.isRow() || seen.part.height() < leastHeight; });
    return rows;
}

void Hand::pass(int milliseconds)
{
    for (int left = milliseconds; left > 0; left -= frame) {
        const std::chrono::milliseconds step(std::min(left, frame));
        FakeClock::advance(step);
        queue.advance(step);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void Hand::settle()
{
    pass(500);
    for (int turn = 0; turn < 60 && isMoving(); ++turn)
        pass(100);
}

bool Hand::isMoving() const
{
    return isMovingIn(*window.contentItem());
}

void Hand::tap(const Seen& control, Way way)
{
    const QPoint place = control.part.center();
    if (way == Way::AssistiveTechnology && control.role != QAccessible::EditableText) {
        auto* seen = QAccessible::queryAccessibleInterface(control.item.data());
        if (seen != nullptr && seen->actionInterface() != nullptr)
            seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    } else if (way == Way::Mouse) {
        QTest::mouseMove(&window, place);
        pass(frame);
        QTest::mousePress(&window, Qt::LeftButton, {}, place);
        pass(2 * frame);
        QTest::mouseRelease(&window, Qt::LeftButton, {}, place);
    } else {
        QTest::touchEvent(&window, finger).press(0, place);
        pass(3 * frame);
        QTest::touchEvent(&window, finger).release(0, place);
    }
}

void Hand::longPress(const QPoint& place)
{
    QTest::touchEvent(&window, finger).press(0, place);
    pass(1500);
    QTest::touchEvent(&window, finger).release(0, place);
}

void Hand::rightClick(const QPoint& place)
{
    QTest::mouseMove(&window, place);
    pass(frame);
    QTest::mousePress(&window, Qt::RightButton, {}, place);
    pass(2 * frame);
    QTest::mouseRelease(&window, Qt::RightButton, {}, place);
}

void Hand::drag(const QPoint& from, const QPoint& to, int duration)
{
    const int moves = std::max(2, duration / frame);
    dragFinger(window, finger, from, to, moves, [this](int frames) { pass(frames * frame); });
}

void Hand::dragWhileTapping(const QPoint& from, const QPoint& to, const QPoint& other)
{
    QTest::touchEvent(&window, finger).press(0, from);
    pass(frame);
    QTest::touchEvent(&window, finger).move(0, from + (to - from) / 2);
    pass(frame);
    QTest::touchEvent(&window, finger).stationary(0).press(1, other);
    pass(2 * frame);
    QTest::touchEvent(&window, finger).stationary(0).release(1, other);
    pass(frame);
    QTest::touchEvent(&window, finger).move(0, to);
    pass(6 * frame);
    QTest::touchEvent(&window, finger).release(0, to);
}

void Hand::pinch(const QPoint& centre, int from, int to)
{
    QTest::touchEvent(&window, finger).press(0, centre - QPoint(from, 0)).press(1, centre + QPoint(from, 0));
    constexpr int moves = 6;
    for (int move = 1; move <= moves; ++move) {
        pass(frame);
        const QPoint reach(from + (to - from) * move / moves, 0);
        QTest::touchEvent(&window, finger).move(0, centre - reach).move(1, centre + reach);
    }
    pass(frame);
    QTest::touchEvent(&window, finger).stationary(0).release(1, centre + QPoint(to, 0));
    pass(frame);
    QTest::touchEvent(&window, finger).release(0, centre - QPoint(to, 0));
}

void Hand::turnWheel(const QPoint& place, int notches)
{
    constexpr int notch = 120;
    QWheelEvent turned(place, window.mapToGlobal(place), {}, {0, notch * notches}, Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window, &turned);
}

void Hand::key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&window, key, modifiers);
}

void Hand::type(const QString& text)
{
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, &window, Qt::Key_unknown, QString(character), Qt::NoModifier);
        pass(frame);
    }
}
