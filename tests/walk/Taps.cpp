#include "tests/walk/Taps.h"

#include "tests/walk/Errands.h"

QString Taps::act(const Seen& control, Hand::Way way, bool twice)
{
    const auto consequence = consequences.of(control);
    if (!consequence)
        return {};
    static const QString ways[] = {"finger", "mouse", "assistive technology"};
    state.hand.tap(control, way);
    if (twice) {
        state.hand.pass(60);
        state.hand.tap(control, way);
    }
    const int screen = state.screens.topNumber();
    state.conclude(*consequence);
    // Only the alert after an import leads somewhere.
    if (control.inPopup && control.name != "OK" && state.screens.topNumber() != screen)
        throw WalkFailure("A tap on " + control.shortName() + " opens " + state.screens.topClass());
    return QString("tap %1%2 by %3")
        .arg(control.shortName(), twice ? " twice" : "", ways[static_cast<int>(way)]);
}

QString Taps::tapControl(const Step& step)
{
    std::vector<Seen> controls = state.hand.inSight();
    std::erase_if(controls, [](const Seen& seen) { return !seen.isPressable() || seen.isRow(); });
    if (controls.empty())
        return {};
    const Seen& control = chosen(controls, step.first);
    // Twice is for what leads away, where the second tap comes too late.
    const bool leadsAway =
        control.name == "Back" || control.name == "Save" || control.role == QAccessible::PageTab;
    if (step.kind == Step::Kind::TapTwice && !leadsAway)
        return {};
    return act(control, static_cast<Hand::Way>(step.second % 3), step.kind == Step::Kind::TapTwice);
}

QString Taps::tapNamed(const Step& step)
{
    for (const Seen& seen : state.hand.inSight())
        if (seen.isPressable() && !seen.isRow() && seen.name == controlName(step))
            return act(seen, static_cast<Hand::Way>(step.second % 3), false);
    return {};
}

QString Taps::tapRow(const Step& step)
{
    const std::vector<Seen> rows = state.hand.rowsInSight();
    if (rows.empty())
        return {};
    return act(chosen(rows, step.first), static_cast<Hand::Way>(step.second % 3), step.second % 7 == 0);
}
