#pragma once

#include "exchange/ExchangeField.h"

#include <optional>

// The lines of a text, one after another, as an exchange file has them: a carriage return ends a line as a
// line feed does, and apostrophes are left out. Takes no more memory than the longest line with an
// apostrophe.
class ExchangeLines
{
public:
    // What `text` refers to must outlive the object.
    explicit ExchangeLines(QStringView text)
        : rest(text)
    {
    }

    // Empty lines are lines, and there is one after the last line break. Absent after the last. What is
    // answered lasts until the next call.
    [[nodiscard]] std::optional<QStringView> next();

private:
    std::optional<QStringView> rest;
    QString withoutApostrophes;
};

// Whether some line of `text`, not necessarily the first, is the header.
[[nodiscard]] bool isExchangeText(QStringView text);

// The texts of a line's fields; empty where the line has none. They are parts of `line`. What stands after
// the last field is left out.
using ExchangeTexts = std::array<QStringView, exchangeFieldCount>;
[[nodiscard]] ExchangeTexts splitRecord(QStringView line);

// What a line says of a movie's attributes, in the order of the fields. Absent: nothing, the attribute stays
// as it is; this is not the same as saying that it has no value.
using ExchangeReadings = std::array<std::optional<AttributeValue>, exchangeFieldCount>;

// Fails when a new movie cannot be made of the texts; the error names the attribute.
[[nodiscard]] Result<ExchangeReadings> readRecord(const ExchangeTexts& texts, ImportTarget target);
