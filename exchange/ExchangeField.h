#pragma once

#include "platform/foundation/Result.h"
#include "platform/store/AttributeValue.h"

#include <QStringView>
#include <array>

// The exchange file is text: the header line, then a line for each movie with its fields between separators,
// and an empty line after each movie. There is no quoting: a separator or a line break inside a title, say,
// shifts what follows it.
inline constexpr QStringView exchangeHeader = u"[MARROWVALE]";
inline constexpr QChar exchangeSeparator = u'^';
inline constexpr std::size_t exchangeFieldCount = 12;

// The fields by which a record of the file is matched with a movie of the catalogue.
inline constexpr std::size_t movieNameField = 4;
inline constexpr std::size_t yearReleasedField = 9;

// Whether what is read goes into a movie that the catalogue lacked or into one that it holds: the two are not
// read alike.
enum class ImportTarget { NewMovie, ExistingMovie };

// A field of the exchange file: which attribute of a movie it carries, how that is put into text, and how it
// is taken out of it.
struct ExchangeField
{
    QString key;
    // Fails for a cover that is no picture.
    Result<QString> (*written)(const AttributeValue& value);
    // What the attribute is to be, possibly no value. `text` is not empty. Fails for a number of a new movie
    // that is none.
    Result<AttributeValue> (*read)(QStringView text, ImportTarget target);
};

// In the order in which they stand in the file.
[[nodiscard]] const std::array<ExchangeField, exchangeFieldCount>& exchangeFields();
