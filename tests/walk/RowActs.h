#pragma once

#include "tests/walk/Consequences.h"
#include "tests/walk/Step.h"

// Acts on a row besides a tap. Returns what was done; empty: nothing.
class RowActs
{
public:
    explicit RowActs(WalkState& state)
        : state(state)
        , consequences(state)
    {
    }

    [[nodiscard]] QString perform(const Step& step);

private:
    [[nodiscard]] QString draw(const Step& step);
    [[nodiscard]] QString drawRow(const Seen& row, double part, const QString& name);
    [[nodiscard]] QString tapWhileDrawing(const Seen& row, const Seen& other);
    void uncovered(const Seen& row);
    [[nodiscard]] bool canDeleteRows();

    WalkState& state;
    Consequences consequences;
};
