#pragma once

#include "tests/walk/EditorChecks.h"
#include "tests/walk/SentOut.h"

// The properties that hold after every step of any walk. Each check throws WalkFailure.
class Invariants
{
public:
    explicit Invariants(WalkState& state)
        : state(state)
        , editorChecks(state)
        , sentOut(state)
    {
    }

    void check();

private:
    void followScreens();
    void followTexts(const std::vector<Seen>& all);
    void checkList(const std::vector<Seen>& all) const;
    void checkRows(const ModelScene& list, const std::vector<Seen>& all) const;
    void checkUncoveredRow(const std::vector<Seen>& all);
    void checkControls(const std::vector<Seen>& all) const;
    void checkOutput();

    WalkState& state;
    EditorChecks editorChecks;
    SentOut sentOut;
};
