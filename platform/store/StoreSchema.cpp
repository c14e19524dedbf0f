#include "platform/store/StoreSchema.h"

namespace {

QByteArray columnDefinition(const NSAttributeDescription& attribute)
{
    const auto name = quotedName(attribute.name);
    switch (attribute.type) {
    case AttributeType::Text:
        return name + " TEXT CHECK (typeof(" + name + ") IN ('text', 'null'))";
    case AttributeType::Date:
        return name + " INTEGER CHECK (typeof(" + name + ") IN ('integer', 'null'))";
    default:
        return name + " INTEGER NOT NULL DEFAULT 0 CHECK (typeof(" + name + ") = 'integer' AND " + name +
               " BETWEEN -32768 AND 32767)";
    }
}

QByteArray createTable(const NSEntityDescription& entity)
{
    QByteArrayList columns{"id INTEGER PRIMARY KEY"};
    for (const auto& attribute : entity.attributes) {
        if (attribute.type != AttributeType::Binary)
            columns << columnDefinition(attribute);
    }
    return "CREATE TABLE " + quotedName(entity.name) + " (" + columns.join(", ") + ")";
}

QByteArray createSideTable(const NSEntityDescription& entity, const NSAttributeDescription& attribute)
{
    return "CREATE TABLE " + sideTable(entity, attribute) + " (record INTEGER PRIMARY KEY REFERENCES " +
           quotedName(entity.name) + " (id) ON DELETE CASCADE, " + quotedName(attribute.name) +
           " BLOB NOT NULL)";
}

QByteArray createIndex(const NSEntityDescription& entity, const QStringList& attributes)
{
    QByteArrayList columns;
    for (const auto& attribute : attributes)
        columns << quotedName(attribute);
    const auto name = entity.name + QStringLiteral("_by_") + attributes.join(QLatin1Char('_'));
    return "CREATE INDEX " + quotedName(name) + " ON " + quotedName(entity.name) + " (" + columns.join(", ") +
           ")";
}

} // namespace

QByteArray quotedName(const QString& name)
{
    return '"' + name.toUtf8().replace('"', "\"\"") + '"';
}

QByteArray sideTable(const NSEntityDescription& entity, const NSAttributeDescription& attribute)
{
    return quotedName(entity.name + QLatin1Char('_') + attribute.name);
}

QByteArrayList createStatements(const std::vector<NSEntityDescription>& entities)
{
    QByteArrayList statements;
    for (const auto& entity : entities) {
        statements << createTable(entity);
        for (const auto& attribute : entity.attributes) {
            if (attribute.type == AttributeType::Binary)
                statements << createSideTable(entity, attribute);
        }
        for (const auto& index : entity.indexes)
            statements << createIndex(entity, index);
    }
    return statements;
}
