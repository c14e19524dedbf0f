#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <optional>
#include <variant>

enum class AttributeType { Text, Int16, Date, Binary };

// What an attribute holds; monostate is "no value", which is not the same as an empty text. Dates count whole
// milliseconds; those read back from a store are in UTC.
using AttributeValue = std::variant<std::monostate, QString, qint16, QDateTime, QByteArray>;

inline bool isAbsent(const AttributeValue& value)
{
    return std::holds_alternative<std::monostate>(value);
}

template <typename T>
AttributeValue attributeValueOf(std::optional<T> value)
{
    return value ? AttributeValue(*std::move(value)) : AttributeValue();
}
