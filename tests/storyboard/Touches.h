#pragma once

#include <QtTest>

// One thing that happens to a finger, or to the list while fingers are down.
struct Touch
{
    enum class Phase { Down, Move, Up, Reload };

    // Since the gesture began. Gestures are played in real time: Qt Quick stamps events itself and measures a
    // long press with a timer.
    int milliseconds = 0;
    int finger = 0;
    // From where the gesture begins.
    QPoint at;
    Phase phase = Phase::Down;
};

using Touches = std::vector<Touch>;

constexpr auto down = Touch::Phase::Down;
constexpr auto move = Touch::Phase::Move;
constexpr auto up = Touch::Phase::Up;
constexpr auto reload = Touch::Phase::Reload;

// A straight stroke of one finger, in ten steps from `from` to `to`, 10 ms each, the first one at `start`
// + 10.
inline Touches stroke(int finger, int start, QPoint from, QPoint to)
{
    Touches touches;
    for (int step = 1; step <= 10; ++step)
        touches.push_back({start + 10 * step, finger, from + (to - from) * step / 10, move});
    return touches;
}

// The parts of a gesture in the order of their time.
inline Touches joined(std::initializer_list<Touches> parts)
{
    Touches all;
    for (const Touches& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    std::stable_sort(all.begin(), all.end(),
                     [](const Touch& a, const Touch& b) { return a.milliseconds < b.milliseconds; });
    return all;
}

// Plays touches into a window, from `origin`. Fingers that a touch doesn't name rest where they are.
class Fingers
{
public:
    Fingers(QWindow& window, QPoint origin)
        : origin(origin)
        , sequence(QTest::touchEvent(&window, QTest::createTouchDevice(), false))
    {
    }

    template <typename OnReload>
    void play(const Touches& touches, const OnReload& onReload)
    {
        for (auto touch = touches.begin(); touch != touches.end();) {
            const auto next = std::find_if(touch, touches.end(), [&](const Touch& later) {
                return later.milliseconds != touch->milliseconds || later.phase == reload;
            });
            if (touch != touches.begin())
                QTest::qWait(touch->milliseconds - std::prev(touch)->milliseconds);
            if (next == touch) {
                onReload();
                ++touch;
                continue;
            }
            send({touch, next});
            touch = next;
        }
    }

private:
    // One event for what happens at one time.
    void send(const Touches& touches)
    {
        for (const int finger : resting)
            sequence.stationary(finger);
        for (const Touch& touch : touches) {
            const QPoint at = origin + touch.at;
            if (touch.phase == down)
                sequence.press(touch.finger, at);
            else if (touch.phase == move)
                sequence.move(touch.finger, at);
            else
                sequence.release(touch.finger, at);
            if (touch.phase == up)
                resting.erase(touch.finger);
            else
                resting.insert(touch.finger);
        }
        sequence.commit();
    }

    QPoint origin;
    // Remembers where resting fingers are.
    QTest::QTouchEventSequence sequence;
    std::set<int> resting;
};
