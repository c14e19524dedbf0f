#pragma once

#include "tests/walk/WalkState.h"

// Compares a movie editor and the zoom screen with what the model says of them. Throws WalkFailure.
class EditorChecks
{
public:
    explicit EditorChecks(WalkState& state)
        : state(state)
    {
    }

    // `all`: what is in the window.
    void check(const std::vector<Seen>& all);

private:
    void checkTexts(const std::vector<Seen>& all, const ModelEditor& editor);
    void checkCover(const std::vector<Seen>& all, bool isExpected) const;

    WalkState& state;
    // The last editor whose texts were compared; they are compared once, as it opens.
    int compared = 0;
};
