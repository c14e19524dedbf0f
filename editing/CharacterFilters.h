#pragma once

#include <QString>

// What may be typed or pasted into the fields of a movie: each answers whether every character of `text` is
// allowed. An empty text, such as a deletion inserts, always is.

// The decimal digits of every script.
[[nodiscard]] bool hasDigitsOnly(const QString& text);
// The decimal point and the digits 0 to 9.
[[nodiscard]] bool hasNumberCharactersOnly(const QString& text);
// Unaccented letters, digits, blanks and common punctuation, but no line break, double quote, backslash or
// "|" or "^".
[[nodiscard]] bool hasNotesCharactersOnly(const QString& text);
