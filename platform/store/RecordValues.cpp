#include "platform/store/RecordValues.h"

namespace {

AttributeValue initialValue(const NSAttributeDescription& attribute)
{
    if (attribute.type == AttributeType::Int16 && isAbsent(attribute.defaultValue))
        return qint16{0};
    return attribute.defaultValue;
}

} // namespace

RecordValues RecordValues::defaultsOf(const NSEntityDescription& entity)
{
    RecordValues values;
    values.unpacked = std::make_unique<std::vector<AttributeValue>>();
    values.unpacked->reserve(entity.attributes.size());
    for (const auto& attribute : entity.attributes)
        values.unpacked->push_back(initialValue(attribute));
    values.changed = ~quint64{0};
    return values;
}

template <typename T>
std::optional<T> RecordValues::unpackedValue(int index) const
{
    const auto* value = std::get_if<T>(&(*unpacked)[static_cast<std::size_t>(index)]);
    return value ? std::optional(*value) : std::nullopt;
}

std::optional<QString> RecordValues::text(int index) const
{
    return unpacked ? unpackedValue<QString>(index) : packed.text(index);
}

bool RecordValues::textMatches(int index, const LowerCaseSearch& search) const
{
    if (unpacked) {
        const auto text = unpackedValue<QString>(index);
        return text && search.isIn(*text);
    }
    const auto text = packed.utf8(index);
    return text && search.isIn(*text);
}

std::optional<qint16> RecordValues::int16(int index) const
{
    return unpacked ? unpackedValue<qint16>(index) : packed.int16(index);
}

std::optional<QDateTime> RecordValues::date(int index) const
{
    return unpacked ? unpackedValue<QDateTime>(index) : packed.date(index);
}

std::optional<QByteArray> RecordValues::changedBinary(int index) const
{
    return isChanged(index) ? unpackedValue<QByteArray>(index) : std::nullopt;
}

AttributeValue RecordValues::value(int index, AttributeType type) const
{
    switch (type) {
    case AttributeType::Text:
        return attributeValueOf(text(index));
    case AttributeType::Int16:
        return attributeValueOf(int16(index));
    case AttributeType::Date:
        return attributeValueOf(date(index));
    default:
        return attributeValueOf(changedBinary(index));
    }
}

void RecordValues::set(int index, AttributeValue value, const NSEntityDescription& entity)
{
    unpack(entity);
    (*unpacked)[static_cast<std::size_t>(index)] = std::move(value);
    changed |= quint64{1} << index;
}

void RecordValues::unpack(const NSEntityDescription& entity)
{
    if (unpacked)
        return;
    auto values = std::make_unique<std::vector<AttributeValue>>();
    values->reserve(entity.attributes.size());
    for (std::size_t index = 0; index < entity.attributes.size(); ++index)
        values->push_back(value(static_cast<int>(index), entity.attributes[index].type));
    unpacked = std::move(values);
    packed = {};
}

void RecordValues::settle(const NSEntityDescription& entity)
{
    changed = 0;
    if (!unpacked)
        return;
    for (std::size_t index = 0; index < entity.attributes.size(); ++index) {
        if (entity.attributes[index].type == AttributeType::Binary)
            (*unpacked)[index] = {};
    }
}
