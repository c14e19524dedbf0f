#pragma once

#include "model/Movies.h"
#include "platform/toolkit/UITextInput.h"

// How a text of a movie editor becomes part of a record. An editor's list of these is the order in which a
// save writes.
struct MovieField
{
    enum class Empty { Skipped, Written };

    // Must outlive the field.
    const UITextInput* input = nullptr;
    std::function<void(Movies&, const QString& text)> write;
    // A text of blanks is not empty.
    Empty whenEmpty = Empty::Skipped;
};

using MovieTextSetter = decltype(&Movies::setMovieName);
using MovieNumberSetter = decltype(&Movies::setYearReleased);

// Without the blanks and tabs at its ends.
[[nodiscard]] MovieField trimmedField(const UITextInput* input, MovieTextSetter setter);
[[nodiscard]] MovieField untrimmedField(const UITextInput* input, MovieTextSetter setter);
// A text that doesn't spell a signed 16-bit number is a fatal error that tells it: what may be typed is
// filtered.
[[nodiscard]] MovieField numberField(const UITextInput* input, MovieNumberSetter setter);

void writeFields(const std::vector<MovieField>& fields, Movies& movie);
