#include "platform/store/NSManagedObject.h"

#include "platform/foundation/Console.h"
#include "platform/store/NSManagedObjectContext.h"

namespace {

bool fitsType(const AttributeValue& value, AttributeType type)
{
    if (isAbsent(value))
        return true;
    switch (type) {
    case AttributeType::Text:
        return std::holds_alternative<QString>(value);
    case AttributeType::Int16:
        return std::holds_alternative<qint16>(value);
    case AttributeType::Date:
        return std::holds_alternative<QDateTime>(value);
    default:
        return std::holds_alternative<QByteArray>(value);
    }
}

// A store keeps moments without their time zone. A number always has a value: an absent one would equal no
// number in a query, although it reads 0.
AttributeValue storedValue(AttributeValue value, AttributeType type)
{
    if (type == AttributeType::Int16 && isAbsent(value))
        return qint16{0};
    if (const auto* moment = std::get_if<QDateTime>(&value))
        return moment->isValid() ? moment->toUTC() : AttributeValue();
    return value;
}

} // namespace

NSManagedObject::NSManagedObject(const NSEntityDescription& entity, NSManagedObjectContext& insertInto)
    : description(entity)
    , context(&insertInto)
{
}

NSManagedObject::~NSManagedObject()
{
    if (context)
        context->forget(*this);
}

int NSManagedObject::requireIndex(const QString& key) const
{
    const auto index = description.indexOf(key);
    if (!index)
        fatalError(QStringLiteral("The entity %1 is not key value coding-compliant for the key %2")
                       .arg(description.name, key));
    return *index;
}

QString NSManagedObject::shortDescription() const
{
    const auto key = description.indexes.empty() ? description.attributes.front().name
                                                 : description.indexes.front().front();
    const auto value = valueForKey(key);
    const auto* name = std::get_if<QString>(&value);
    return description.name + QStringLiteral(": ") + (name == nullptr ? QString() : *name);
}

AttributeValue NSManagedObject::valueForKey(const QString& key) const
{
    const auto index = requireIndex(key);
    const auto type = description.attributes[static_cast<std::size_t>(index)].type;
    return type == AttributeType::Binary ? attributeValueOf(binary(index)) : values.value(index, type);
}

void NSManagedObject::setValueForKey(const AttributeValue& value, const QString& key)
{
    const auto index = requireIndex(key);
    const auto type = description.attributes[static_cast<std::size_t>(index)].type;
    if (!fitsType(value, type))
        fatalError(QStringLiteral("Unacceptable type of value for the attribute %1 of the entity %2")
                       .arg(key, description.name));
    set(index, value);
}

std::optional<QString> NSManagedObject::text(int index) const
{
    return values.text(index);
}

bool NSManagedObject::textMatches(int index, const LowerCaseSearch& search) const
{
    return values.textMatches(index, search);
}

qint16 NSManagedObject::int16(int index) const
{
    return values.int16(index).value_or(0);
}

std::optional<QDateTime> NSManagedObject::date(int index) const
{
    return values.date(index);
}

std::optional<QByteArray> NSManagedObject::binary(int index) const
{
    if (!context || values.isChanged(index))
        return values.changedBinary(index);
    return context->storedBinary(*this, index);
}

void NSManagedObject::setText(int index, std::optional<QString> value)
{
    set(index, attributeValueOf(std::move(value)));
}

void NSManagedObject::setInt16(int index, std::optional<qint16> value)
{
    set(index, attributeValueOf(value));
}

void NSManagedObject::setDate(int index, std::optional<QDateTime> value)
{
    set(index, attributeValueOf(std::move(value)));
}

void NSManagedObject::setBinary(int index, std::optional<QByteArray> value)
{
    set(index, attributeValueOf(std::move(value)));
}

void NSManagedObject::set(int index, AttributeValue value)
{
    if (!context)
        return;
    const auto type = description.attributes[static_cast<std::size_t>(index)].type;
    value = storedValue(std::move(value), type);
    if (type != AttributeType::Binary && values.value(index, type) == value)
        return;
    values.set(index, std::move(value), description);
    context->noteChange(*this);
}
