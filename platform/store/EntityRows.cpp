// How the rows of an entity follow its objects.
#include "platform/store/EntityTable.h"
#include "platform/store/StoreSchema.h"

namespace {

void bindAttribute(Query& query, const AttributeValue& value)
{
    if (const auto* text = std::get_if<QString>(&value))
        query.bind(*text);
    else if (const auto* number = std::get_if<qint16>(&value))
        query.bind(qint64{*number});
    else if (const auto* moment = std::get_if<QDateTime>(&value))
        query.bind(*moment);
    else
        query.bindNull();
}

} // namespace

Status EntityTable::write(NSManagedObject& object)
{
    if (object.isDeleted)
        return deleteRow(object);
    const auto written = object.recordId == 0 ? insertRow(object) : updateRow(object);
    return written ? writeBinaries(object) : written;
}

Status EntityTable::insertRow(NSManagedObject& object)
{
    auto inserting = database.query(insertSql);
    for (std::size_t index = 0; index < description.attributes.size(); ++index) {
        const auto type = description.attributes[index].type;
        if (type != AttributeType::Binary)
            bindAttribute(inserting, object.values.value(static_cast<int>(index), type));
    }
    const auto inserted = inserting.run();
    if (!inserted)
        return inserted;
    object.recordId = database.lastInsertId();
    held.insert(object.recordId, &object);
    if (rowCount)
        ++*rowCount;
    return inserted;
}

Status EntityTable::updateRow(const NSManagedObject& object)
{
    QByteArrayList assignments;
    std::vector<AttributeValue> changed;
    for (std::size_t index = 0; index < description.attributes.size(); ++index) {
        const auto& attribute = description.attributes[index];
        if (attribute.type == AttributeType::Binary || !object.values.isChanged(static_cast<int>(index)))
            continue;
        assignments << quotedName(attribute.name) + " = ?";
        changed.push_back(object.values.value(static_cast<int>(index), attribute.type));
    }
    if (changed.empty())
        return success();
    auto updating = database.query("UPDATE " + quotedName(description.name) + " SET " +
                                   assignments.join(", ") + " WHERE id = ?");
    for (const auto& value : changed)
        bindAttribute(updating, value);
    updating.bind(object.recordId);
    return updating.run();
}

Status EntityTable::deleteRow(const NSManagedObject& object)
{
    auto deleting = database.query("DELETE FROM " + quotedName(description.name) + " WHERE id = ?");
    deleting.bind(object.recordId);
    const auto deleted = deleting.run();
    if (deleted && rowCount)
        --*rowCount;
    return deleted;
}

Status EntityTable::writeBinaries(const NSManagedObject& object)
{
    for (std::size_t index = 0; index < description.attributes.size(); ++index) {
        const auto position = static_cast<int>(index);
        if (description.attributes[index].type != AttributeType::Binary || !object.values.isChanged(position))
            continue;
        if (const auto written = writeBinary(object, position); !written)
            return written;
    }
    return success();
}

Status EntityTable::writeBinary(const NSManagedObject& object, int index)
{
    const auto table = sideTable(description, description.attributes[static_cast<std::size_t>(index)]);
    const auto bytes = object.values.changedBinary(index);
    auto writing = database.query(bytes ? "REPLACE INTO " + table + " VALUES (?, ?)"
                                        : "DELETE FROM " + table + " WHERE record = ?");
    writing.bind(object.recordId);
    if (bytes)
        writing.bindBlob(*bytes);
    return writing.run();
}

Result<std::optional<QByteArray>> EntityTable::binary(const NSManagedObject& object, int index)
{
    const auto& attribute = description.attributes[static_cast<std::size_t>(index)];
    auto reading = database.query("SELECT " + quotedName(attribute.name) + " FROM " +
                                  sideTable(description, attribute) + " WHERE record = ?");
    reading.bind(object.recordId);
    const auto stepped = reading.step();
    if (!stepped)
        return stepped.error();
    return stepped.value() ? std::optional(reading.blob(0).toByteArray()) : std::nullopt;
}
