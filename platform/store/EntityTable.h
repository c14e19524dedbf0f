#pragma once

#include "platform/store/Database.h"
#include "platform/store/FetchSql.h"
#include "platform/store/HeldObjects.h"
#include "platform/store/NSManagedObject.h"

// The records of one entity: their rows in the database, and the objects in memory that stand for some of
// them.
class EntityTable
{
public:
    using Sink = std::function<void(std::shared_ptr<NSManagedObject>)>;

    EntityTable(const NSEntityDescription& entity, NSManagedObjectContext& context, Database& opened);
    ~EntityTable();
    EntityTable(const EntityTable&) = delete;
    EntityTable& operator=(const EntityTable&) = delete;

    [[nodiscard]] const NSEntityDescription& entity() const { return description; }

    // Hands over the objects of a request, in order.
    [[nodiscard]] Status fetch(const NSFetchRequest& request, const Sink& sink);
    [[nodiscard]] Result<qsizetype> count(const NSFetchRequest& request);

    // Inserts, updates or deletes the row of an object, whichever its state asks for.
    [[nodiscard]] Status write(NSManagedObject& object);
    [[nodiscard]] Result<std::optional<QByteArray>> binary(const NSManagedObject& object, int index);

    // The object no longer stands for its row.
    void forget(const NSManagedObject& object) { held.remove(object.recordId); }
    // No object in memory stands for a row any more.
    void forgetAll();
    // Rows that were written may be gone again.
    void distrustCounts() { rowCount.reset(); }

private:
    [[nodiscard]] bool holdsMostRecords();
    [[nodiscard]] Status fetchRows(const FetchSql& request, const Sink& sink);
    [[nodiscard]] Status fetchByIds(const FetchSql& request, const Sink& sink);
    [[nodiscard]] Result<std::shared_ptr<NSManagedObject>> readRecord(qint64 id);
    [[nodiscard]] std::shared_ptr<NSManagedObject> makeObject(const Query& row);

    [[nodiscard]] Status insertRow(NSManagedObject& object);
    [[nodiscard]] Status updateRow(const NSManagedObject& object);
    [[nodiscard]] Status deleteRow(const NSManagedObject& object);
    [[nodiscard]] Status writeBinaries(const NSManagedObject& object);
    [[nodiscard]] Status writeBinary(const NSManagedObject& object, int index);

    const NSEntityDescription& description;
    NSManagedObjectContext& owner;
    Database& database;
    // The id and all columns but the binary ones.
    QByteArray columns;
    QByteArray insertSql;
    HeldObjects held;
    PackedRecord::Packer packer;
    // How many rows there are, once that was asked; unknown to others' writes, so good for choosing a way
    // only.
    std::optional<qint64> rowCount;
};
