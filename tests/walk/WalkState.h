#pragma once

#include "tests/storyboard/Warnings.h"
#include "tests/walk/Hand.h"
#include "tests/walk/ModelProgram.h"
#include "tests/walk/ScreenStack.h"
#include "tests/walk/WalkedProgram.h"

#include <functional>
#include <stdexcept>

// The program does not do what it should.
struct WalkFailure : std::runtime_error
{
    explicit WalkFailure(const QString& what)
        : std::runtime_error(what.toStdString())
    {
    }
};

// The program, who uses it, and what it should be doing.
struct WalkState
{
    explicit WalkState(unsigned seed)
        : program(seed)
        , hand(program.window(), program.queue)
        , screens(program.window().navigationController())
        , model(storedCatalogue())
    {
    }

    [[nodiscard]] ModelScene* list() { return model.list(screens.topNumber()); }
    // Empty: none is uncovered.
    [[nodiscard]] QString& uncoveredRow() { return uncoveredRows[screens.topNumber()]; }

    // Waits until the program has done what it was asked for, then changes the model alike; empty: not at
    // all.
    void conclude(const std::function<void()>& consequence)
    {
        hand.settle();
        if (consequence)
            consequence();
    }

    Warnings warnings;
    WalkedProgram program;
    Hand hand;
    ScreenStack screens;
    ModelProgram model;

    // By screen: the text of the row that the user uncovered.
    QHash<int, QString> uncoveredRows;
    // The text that "Load File" has loaded.
    QString loadedText;
    // The screen that the last act must have closed; 0: none.
    int mustBeGone = 0;
    // The screen below it reloads where it does so.
    bool comesBack = false;
};
