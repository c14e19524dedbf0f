#pragma once

#include <QString>
#include <optional>

// `text` without the blanks (U+0020) and tabs at its ends. Line breaks and every other kind of space stay.
[[nodiscard]] QString trimmingWhitespace(const QString& text);

// The number that the whole of `text` spells: an optional "+" or "-", then ASCII decimal digits and nothing
// else. Absent when it spells none, or one outside -32768 to 32767.
[[nodiscard]] std::optional<qint16> int16From(const QString& text);

// Returns `text` in the one form that canonically equivalent texts share: a letter and its accent are one
// character where there is one for both.
[[nodiscard]] QString canonical(const QString& text);

// Whether `left` comes before `right`, character by character by code point: upper case before lower case.
[[nodiscard]] bool precedesByCodePoint(const QString& left, const QString& right);
