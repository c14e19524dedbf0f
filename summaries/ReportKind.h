#pragma once

#include "model/Movies.h"

// What tells the reports on the five kinds of groups apart.
struct ReportKind
{
    QString titleText;
    // Follows the title's text; taken from the first movie.
    QString (*titleValue)(const Movies& movie);
    // A line of its own before the movie's name, and one after its genre; null: none.
    QString (*leadingLine)(const Movies& movie);
    QString (*lineAfterGenre)(const Movies& movie);
    // Several kinds share one: a later report takes the place of an earlier one.
    QString fileName;
};

// They live as long as the process.
[[nodiscard]] const ReportKind& genreReport();
[[nodiscard]] const ReportKind& dateReleasedReport();
[[nodiscard]] const ReportKind& dateWatchedReport();
[[nodiscard]] const ReportKind& ratingReport();
[[nodiscard]] const ReportKind& providerReport();
