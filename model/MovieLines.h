#pragma once

#include <QString>
#include <optional>

// The texts of a movie that is shared as words.
struct MovieTexts
{
    std::optional<QString> movieName;
    std::optional<QString> provider;
    std::optional<QString> yearReleased;
    std::optional<QString> runTime;
    std::optional<QString> rating;
    std::optional<QString> genre;
    std::optional<QString> actors;
    std::optional<QString> directors;
    std::optional<QString> notes;
};

// A line for each text that there is: its label, the text, a line break.
[[nodiscard]] QString movieLines(const MovieTexts& movie);
