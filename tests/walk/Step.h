#pragma once

#include <QStringList>
#include <iterator>
#include <vector>

// One act of a random user. The numbers choose among what is there when it is done, so that a step keeps a
// meaning when others before it are left out.
struct Step
{
    enum class Kind {
        Tap,
        TapTwice,
        TapRow,
        UncoverRow,
        DrawRowAway,
        DrawRowBack,
        SecondFinger,
        HoldRow,
        RightClick,
        Scroll,
        Wheel,
        Pinch,
        StrokeFromEdge,
        Key,
        Type,
        Resize,
        SwitchStyle,
        Wait,
        AnswerDialogs,
        ChangeDevice,
        TapNamed,
        Search,
        Retype,
        GoHome
    };
    static constexpr int kinds = static_cast<int>(Kind::GoHome) + 1;

    Kind kind = Kind::Tap;
    unsigned first = 0;
    unsigned second = 0;
};

// One of the values; the number may be any.
template <typename Values>
[[nodiscard]] const auto& chosen(const Values& values, unsigned number)
{
    return values[number % std::size(values)];
}

// Returns the same steps for the same seed: single acts and errands. Each walk leaves some kinds of acts out,
// so that rare ones get their turn.
[[nodiscard]] std::vector<Step> randomSteps(unsigned seed, int count);

// "6.12.0 0.3.1", which `stepsFrom` reads again.
[[nodiscard]] QString textOf(const std::vector<Step>& steps);
[[nodiscard]] std::vector<Step> stepsFrom(const QString& text);
