#include "platform/store/EntityTable.h"

#include "platform/store/StoreSchema.h"

namespace {

QByteArrayList columnNames(const NSEntityDescription& entity)
{
    QByteArrayList names;
    for (const auto& attribute : entity.attributes) {
        if (attribute.type != AttributeType::Binary)
            names << quotedName(attribute.name);
    }
    return names;
}

QByteArray insertStatement(const NSEntityDescription& entity)
{
    const auto names = columnNames(entity);
    return "INSERT INTO " + quotedName(entity.name) + " (" + names.join(", ") + ") VALUES (" +
           QByteArrayList(names.size(), "?").join(", ") + ")";
}

qint16 clampedToInt16(qint64 number)
{
    return static_cast<qint16>(
        std::clamp<qint64>(number, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()));
}

void packColumn(PackedRecord::Packer& packer, const Query& row, int column, AttributeType type)
{
    if (row.isNull(column))
        packer.addAbsent();
    else if (type == AttributeType::Text)
        packer.addBytes(row.text(column));
    else if (type == AttributeType::Int16)
        packer.addNumber(clampedToInt16(row.number(column)));
    else
        packer.addNumber(row.number(column));
}

} // namespace

EntityTable::EntityTable(const NSEntityDescription& entity, NSManagedObjectContext& context, Database& opened)
    : description(entity)
    , owner(context)
    , database(opened)
    , columns("id, " + columnNames(entity).join(", "))
    , insertSql(insertStatement(entity))
{
}

EntityTable::~EntityTable()
{
    forgetAll();
}

void EntityTable::forgetAll()
{
    held.forEach([](NSManagedObject& object) { object.context = nullptr; });
    held = {};
    distrustCounts();
}

Status EntityTable::fetch(const NSFetchRequest& request, const Sink& sink)
{
    const FetchSql sql(request, description);
    return holdsMostRecords() ? fetchByIds(sql, sink) : fetchRows(sql, sink);
}

// Objects that are in memory need no columns read, and reading the ids alone is many times faster.
bool EntityTable::holdsMostRecords()
{
    constexpr qsizetype fewObjects = 64;
    if (held.size() < fewObjects)
        return false;
    if (!rowCount) {
        const auto counted = database.number("SELECT COUNT(*) FROM " + quotedName(description.name));
        if (!counted)
            return false;
        rowCount = counted.value();
    }
    return held.size() * 2 > *rowCount;
}

Status EntityTable::fetchRows(const FetchSql& request, const Sink& sink)
{
    auto rows = database.query(request.select(columns));
    request.bindTo(rows);
    return rows.forEachRow([&] {
        auto* known = held.find(rows.number(0));
        sink(known ? known->shared_from_this() : makeObject(rows));
    });
}

// Sorted records lie in memory in no order, so most of the time would go into waiting for each object in
// turn.
Status EntityTable::fetchByIds(const FetchSql& request, const Sink& sink)
{
    constexpr std::size_t ahead = 16;
    std::vector<std::pair<qint64, NSManagedObject*>> records;
    auto ids = database.query(request.select("id"));
    request.bindTo(ids);
    const auto listed =
        ids.forEachRow([&] { records.emplace_back(ids.number(0), held.find(ids.number(0))); });
    if (!listed)
        return listed;
    for (std::size_t index = 0; index < records.size(); ++index) {
        if (index + ahead < records.size())
            __builtin_prefetch(records[index + ahead].second);
        const auto [id, known] = records[index];
        if (known) {
            sink(known->shared_from_this());
        } else {
            auto read = readRecord(id);
            if (!read)
                return read.error();
            sink(std::move(read).value());
        }
    }
    return success();
}

Result<std::shared_ptr<NSManagedObject>> EntityTable::readRecord(qint64 id)
{
    auto row =
        database.query("SELECT " + columns + " FROM " + quotedName(description.name) + " WHERE id = ?");
    row.bind(id);
    const auto stepped = row.step();
    if (!stepped)
        return stepped.error();
    if (!stepped.value())
        return NSError{QStringLiteral("A record of %1 is missing from the store.").arg(description.name), {}};
    return makeObject(row);
}

std::shared_ptr<NSManagedObject> EntityTable::makeObject(const Query& row)
{
    packer.start(static_cast<int>(description.attributes.size()));
    int column = 0;
    for (const auto& attribute : description.attributes) {
        if (attribute.type == AttributeType::Binary)
            packer.addAbsent();
        else
            packColumn(packer, row, ++column, attribute.type);
    }
    auto object = description.factory(description, owner);
    object->values.load(packer.finish());
    object->recordId = row.number(0);
    held.insert(object->recordId, object.get());
    return object;
}

Result<qsizetype> EntityTable::count(const NSFetchRequest& request)
{
    const FetchSql sql(request, description);
    auto counting = database.query(sql.count());
    sql.bindTo(counting);
    const auto stepped = counting.step();
    if (!stepped)
        return stepped.error();
    return static_cast<qsizetype>(counting.number(0));
}
