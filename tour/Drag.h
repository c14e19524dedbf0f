#pragma once

#include <QtTest>

// Draws one finger in a straight line, in `moves` steps, and rests before it lifts: without a rest it would
// flick. Calls `passFrames(count)` to let time pass.
template <typename PassFrames>
void dragFinger(QWindow& window, QPointingDevice* finger, const QPoint& from, const QPoint& to, int moves,
                const PassFrames& passFrames)
{
    constexpr int framesOfRest = 6;
    QTest::touchEvent(&window, finger).press(0, from);
    for (int move = 1; move <= moves; ++move) {
        passFrames(1);
        QTest::touchEvent(&window, finger).move(0, from + (to - from) * move / moves);
    }
    passFrames(framesOfRest);
    QTest::touchEvent(&window, finger).release(0, to);
}
