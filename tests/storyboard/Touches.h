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
        : window(window)
        , origin(origin)
    {
    }

    template <typename OnReload>
    void play(const Touches& touches, const OnReload& onReload)
    {
        int now = 0;
        for (const Touch& touch : touches) {
            if (touch.milliseconds > now)
                QTest::qWait(touch.milliseconds - now);
            now = touch.milliseconds;
            if (touch.phase == reload)
                onReload();
            else
                send(touch);
        }
    }

private:
    void send(const Touch& touch)
    {
        auto event = QTest::touchEvent(&window, device);
        for (const int other : resting)
            if (other != touch.finger)
                event.stationary(other);
        resting.insert(touch.finger);
        if (touch.phase == down)
            event.press(touch.finger, origin + touch.at);
        else if (touch.phase == move)
            event.move(touch.finger, origin + touch.at);
        else
            event.release(touch.finger, origin + touch.at);
        if (touch.phase == up)
            resting.erase(touch.finger);
    }

    QWindow& window;
    QPoint origin;
    QPointingDevice* device = QTest::createTouchDevice();
    std::set<int> resting;
};
