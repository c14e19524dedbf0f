#pragma once

#include "tests/walk/WalkState.h"

#include <functional>

// Changes the model as an act should change the program; empty: not at all.
using Consequence = std::function<void()>;

// The expected effects of the user's acts, by the screen in front and the control's name.
class Consequences
{
public:
    explicit Consequences(WalkState& state)
        : state(state)
    {
    }

    // Absent for an act that a walk leaves out, since it may end the program as prescribed.
    [[nodiscard]] std::optional<Consequence> of(const Seen& control) const;
    [[nodiscard]] std::optional<Consequence> ofKey(Qt::Key key, Qt::KeyboardModifiers modifiers) const;
    [[nodiscard]] Consequence choosing(std::size_t row) const;
    [[nodiscard]] Consequence deleting(std::size_t row) const;
    // Where it stands in its list; absent: no list that the model knows.
    [[nodiscard]] std::optional<std::size_t> positionOf(const Seen& row) const;
    // The row on which a swipe action stands; null: none.
    [[nodiscard]] static QQuickItem* rowAround(const Seen& control);

private:
    // The desktop's own dialogs are no popups of the window.
    [[nodiscard]] bool isBehindDialog() const;
    [[nodiscard]] std::optional<Consequence> inPopup(const QString& name) const;
    [[nodiscard]] std::optional<Consequence> ofSaving() const;
    [[nodiscard]] Consequence ofSavingValue(const QString& screenClass, const FormTexts& texts) const;
    [[nodiscard]] Consequence ofSavingMovie(const FormTexts& texts) const;
    [[nodiscard]] std::optional<Consequence> ofKeyInList(Qt::Key key, const Seen& list) const;

    WalkState& state;
};
