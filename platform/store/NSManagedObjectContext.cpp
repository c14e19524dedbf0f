#include "platform/store/NSManagedObjectContext.h"

#include "platform/store/Database.h"
#include "platform/store/EntityTable.h"

NSManagedObjectContext::NSManagedObjectContext(const NSManagedObjectModel& model,
                                               std::unique_ptr<Database> opened)
    : database(std::move(opened))
    , place(database->path())
{
    for (const auto& entity : model.entities)
        tables.push_back(std::make_unique<EntityTable>(entity, *this, *database));
}

NSManagedObjectContext::~NSManagedObjectContext()
{
    tables.clear();
    forgetUnsaved();
}

void NSManagedObjectContext::reset()
{
    if (std::exchange(transactionOpen, false) && database->inTransaction())
        // Ignored: what a rollback can't undo at once is undone when the connection is closed.
        (void)database->run("ROLLBACK").ok();
    for (const auto& table : tables)
        table->forgetAll();
    forgetUnsaved();
}

void NSManagedObjectContext::forgetUnsaved()
{
    for (const auto& object : unsaved.takeAll())
        object->context = nullptr;
}

EntityTable& NSManagedObjectContext::requireTable(const QString& entityName) const
{
    for (const auto& table : tables) {
        if (table->entity().name == entityName)
            return *table;
    }
    fatalError(QStringLiteral("The model has no entity called %1").arg(entityName));
}

Status NSManagedObjectContext::collect(const NSFetchRequest& request, const Sink& sink)
{
    auto& table = requireTable(request.entityName);
    flushIfPossible();
    return table.fetch(request, sink);
}

Result<qsizetype> NSManagedObjectContext::count(const NSFetchRequest& request)
{
    auto& table = requireTable(request.entityName);
    flushIfPossible();
    return table.count(request);
}

std::shared_ptr<NSManagedObject> NSManagedObjectContext::insert(const QString& entityName)
{
    const auto& entity = requireTable(entityName).entity();
    auto object = entity.factory(entity, *this);
    object->values = RecordValues::defaultsOf(entity);
    object->isNew = true;
    unsaved.note(*object);
    return object;
}

void NSManagedObjectContext::deleteObject(const std::shared_ptr<NSManagedObject>& object)
{
    if (object->context != this)
        return;
    object->context = nullptr;
    if (object->recordId == 0) {
        unsaved.drop(*object);
        return;
    }
    requireTable(object->entity().name).forget(*object);
    object->isDeleted = true;
    unsaved.note(*object);
}

QStringList NSManagedObjectContext::describeChanges() const
{
    QStringList lines;
    unsaved.forEach([&](const NSManagedObject& object) { lines << object.shortDescription(); });
    return lines;
}

void NSManagedObjectContext::forget(const NSManagedObject& object)
{
    if (object.recordId != 0)
        requireTable(object.entity().name).forget(object);
}

std::optional<QByteArray> NSManagedObjectContext::storedBinary(const NSManagedObject& object, int index)
{
    auto read = requireTable(object.entity().name).binary(object, index);
    return read ? std::move(read).value() : std::nullopt;
}
