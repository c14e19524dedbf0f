#include "tests/walk/Acts.h"

#include <QRegularExpression>

namespace {

const QString keys[] = {"Tab",    "Tab",    "Shift+Tab", "Return",   "Space",     "Down",    "Down",
                        "Up",     "Left",   "Right",     "Esc",      "PgDown",    "PgUp",    "Home",
                        "End",    "Del",    "Del",       "Ctrl+F",   "Backspace", "Enter",   "Ctrl+N",
                        "Ctrl+S", "Ctrl+A", "Ctrl+V",    "Alt+Left", "Ctrl+Z",    "Alt+Down"};
const QString words[] = {"a",       "The", "on",  "19", "20",     "7",    "Com",
                         "netflix", "PG",  "Zed", "  ", "O'Neil", "x^y~", "e\u0301"};
const QString numbers[] = {"1", "9", "19", "2001", "20"};
// A letter takes a frame.
constexpr int longestRetyped = 40;
const QSize sizes[] = {{390, 844}, {844, 390}, {360, 640}, {820, 1180}, {1440, 900}, {420, 860}};

} // namespace

QString Acts::perform(const Step& step)
{
    using Kind = Step::Kind;
    switch (step.kind) {
    case Kind::Tap:
    case Kind::TapTwice:
        return taps.tapControl(step);
    case Kind::TapNamed:
        return taps.tapNamed(step);
    case Kind::TapRow:
        return taps.tapRow(step);
    case Kind::UncoverRow:
    case Kind::DrawRowAway:
    case Kind::DrawRowBack:
    case Kind::SecondFinger:
    case Kind::HoldRow:
    case Kind::RightClick:
        return rows.perform(step);
    case Kind::Scroll:
    case Kind::Wheel:
    case Kind::Pinch:
        return moveView(step);
    case Kind::StrokeFromEdge:
        return strokeFromEdge();
    case Kind::Key:
        return pressKey(step);
    case Kind::Type:
        return typeText(step);
    case Kind::Search:
        return search(step);
    case Kind::Retype:
        return retype(step);
    case Kind::Resize:
        return resize(step);
    case Kind::Wait:
        return wait(step);
    case Kind::AnswerDialogs:
        return device.answerDialogs(step);
    default:
        return device.change(step);
    }
}

QString Acts::pressKey(const Step& step)
{
    const QString& name = chosen(keys, step.first);
    const QKeyCombination pressed = QKeySequence(name)[0];
    const auto consequence = consequences.ofKey(pressed.key(), pressed.keyboardModifiers());
    if (!consequence)
        return {};
    state.hand.key(pressed.key(), pressed.keyboardModifiers());
    state.conclude(*consequence);
    if (state.program.window().activeFocusItem() == nullptr)
        throw WalkFailure("Nothing has the keyboard after " + name);
    return "press " + name;
}

QString Acts::typeText(const Step& step)
{
    for (const Seen& seen : state.hand.inSight()) {
        if (seen.role != QAccessible::EditableText || !seen.state.focused)
            continue;
        const QString text = seen.isNumber() ? chosen(numbers, step.first) : chosen(words, step.first);
        state.hand.type(text);
        state.conclude({});
        return QString("type \"%1\" into %2").arg(text, seen.shortName());
    }
    return {};
}

// Mostly for what some row says.
QString Acts::search(const Step& step)
{
    const std::vector<Seen> all = state.hand.inSight();
    const auto field = std::find_if(all.begin(), all.end(), [](const Seen& seen) {
        return seen.isSearchField() && !seen.state.disabled;
    });
    if (field == all.end())
        return {};
    const std::vector<Seen> rows = state.hand.rowsInSight();
    QString text = chosen(words, step.second);
    if (step.first % 4 > 0 && !rows.empty())
        text =
            chosen(chosen(rows, step.second).name.split(QRegularExpression("[\\s:]+")), step.first).left(3);
    const QString tapped = taps.act(*field, static_cast<Hand::Way>(step.second % 3), false);
    state.hand.key(Qt::Key_A, Qt::ControlModifier);
    state.hand.type(text);
    state.conclude({});
    return tapped + QString(", type \"%1\"").arg(text);
}

// What was there, or nearly so.
QString Acts::retype(const Step& step)
{
    for (const Seen& seen : state.hand.inSight()) {
        if (seen.role != QAccessible::EditableText || !seen.state.focused || seen.isSearchField())
            continue;
        const QString there = textOf(seen);
        const QString next[] = {there, there.toUpper(), there.toLower(), there + ' ', there + 'e', QString()};
        const QString text = seen.isNumber() ? chosen(numbers, step.first) : chosen(next, step.first);
        if (text.size() > longestRetyped)
            return {};
        state.hand.key(Qt::Key_A, Qt::ControlModifier);
        text.isEmpty() ? state.hand.key(Qt::Key_Backspace, Qt::NoModifier) : state.hand.type(text);
        state.conclude({});
        return QString("type \"%1\" over %2").arg(text, seen.shortName());
    }
    return {};
}

QString Acts::moveView(const Step& step)
{
    const QSize size = state.program.window().size();
    const QPoint middle(size.width() / 2, size.height() / 2);
    const bool upwards = step.first % 3 > 0;
    if (step.kind == Step::Kind::Pinch) {
        // Either finger could press a button of the dialog.
        if (state.screens.presented() != nullptr)
            return {};
        state.hand.pinch(middle, 60, upwards ? 120 : 30);
    } else if (step.kind == Step::Kind::Wheel) {
        state.hand.turnWheel(middle, upwards ? -3 : 3);
    } else {
        const QPoint reach(0, size.height() / 4);
        state.hand.drag(middle, upwards ? middle - reach : middle + reach,
                        60 + static_cast<int>(step.second % 200));
    }
    state.conclude({});
    return step.kind == Step::Kind::Pinch ? "pinch" : upwards ? "scroll down" : "scroll up";
}

QString Acts::strokeFromEdge()
{
    const int middle = state.program.window().height() / 2;
    state.hand.drag({4, middle}, {200, middle}, 160);
    state.conclude({});
    return "stroke from the left edge";
}

QString Acts::resize(const Step& step)
{
    const QSize size = chosen(sizes, step.first);
    state.program.window().resize(size);
    // Half of the times in the middle of what moves.
    state.hand.pass(step.second % 2 == 0 ? 40 : 400);
    state.conclude({});
    return QString("resize to %1 by %2").arg(size.width()).arg(size.height());
}

QString Acts::wait(const Step& step)
{
    state.hand.pass(static_cast<int>(step.first % 6) * 1000 + 100);
    state.conclude({});
    return "wait";
}
