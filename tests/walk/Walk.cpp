#include "tests/walk/Walk.h"

namespace {

constexpr int longestWayHome = 10;

} // namespace

Walk::Walk(unsigned seed)
    : state(seed)
    , acts(state)
    , invariants(state)
{
    state.hand.settle();
    invariants.check();
}

QString Walk::take(const Step& step)
{
    if (step.kind == Step::Kind::GoHome) {
        goHome();
        return "go home by Escape";
    }
    const QString done = acts.perform(step);
    return done.isEmpty() ? done : done + "  -> " + state.screens.topClass();
}

void Walk::goHome()
{
    for (int step = 0; step < longestWayHome; ++step) {
        // The desktop's own dialogs are not the window's to close.
        if (!acts.perform({Step::Kind::AnswerDialogs}).isEmpty())
            invariants.check();
        if (state.screens.depth() == 0 && state.screens.presented() == nullptr)
            return;
        state.hand.key(Qt::Key_Escape, Qt::NoModifier);
        state.hand.settle();
        invariants.check();
    }
    const UIViewController* presented = state.screens.presented();
    QStringList sights;
    for (const Seen& seen : state.hand.inSight())
        sights.append(seen.name.left(20) + (seen.state.focused ? " (focused)" : ""));
    throw WalkFailure(
        QString("Escape does not lead home within ten steps; the screen is %1, it presents %2; in sight: %3")
            .arg(state.screens.topClass(),
                 presented == nullptr ? "nothing" : presented->metaObject()->className(), sights.join(", ")));
}
