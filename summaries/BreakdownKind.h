#pragma once

#include "summaries/ReportKind.h"

// What tells the five lists of one group apart.
struct BreakdownKind
{
    // Under which the update and the print screen know the list.
    QString returnScreen;
    // The records of the group last chosen; a missing choice ends the program.
    NSPredicate (*membersOfChosenGroup)();
    // How people call the group last chosen.
    QString (*nameOfChosenGroup)();
    QString (*firstLine)(const Movies& movie);
    // What follows the movie's name on the second line.
    QString (*afterName)(const Movies& movie);
    // Rows stay light in dark style, so their text turns black there.
    bool turnsTextBlack;
    const ReportKind& report;
};

// They live as long as the process.
[[nodiscard]] const BreakdownKind& genreBreakdown();
[[nodiscard]] const BreakdownKind& dateReleasedBreakdown();
[[nodiscard]] const BreakdownKind& dateWatchedBreakdown();
[[nodiscard]] const BreakdownKind& ratingBreakdown();
[[nodiscard]] const BreakdownKind& providerBreakdown();
