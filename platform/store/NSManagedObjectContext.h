#pragma once

#include "platform/foundation/Console.h"
#include "platform/foundation/Result.h"
#include "platform/store/NSFetchRequest.h"
#include "platform/store/NSManagedObject.h"
#include "platform/store/NSManagedObjectModel.h"
#include "platform/store/RefusedSaves.h"
#include "platform/store/StorePlace.h"
#include "platform/store/UnsavedChanges.h"

class Database;
class EntityTable;

// Where the objects of a store are fetched, made, changed and deleted, on one thread. Changes are seen by
// every fetch at once, unless the store refuses them, and become permanent, all together, with the next save;
// what is not saved is gone when the process ends. When something fails, nothing unsaved is lost: the objects
// keep their values, and the next save tries again.
//
// Programming errors, such as an entity that the model lacks, end the program.
class NSManagedObjectContext
{
public:
    class BulkSaves;
    using SaveHandler = std::function<void(const Status&)>;

    // The model must outlive the context and its objects.
    NSManagedObjectContext(const NSManagedObjectModel& model, std::unique_ptr<Database> opened);
    ~NSManagedObjectContext();
    NSManagedObjectContext(const NSManagedObjectContext&) = delete;
    NSManagedObjectContext& operator=(const NSManagedObjectContext&) = delete;

    // The objects of a request. T is the class of the requested entity, or the base of all.
    template <typename T = NSManagedObject>
    [[nodiscard]] Result<std::vector<std::shared_ptr<T>>> fetch(const NSFetchRequest& request);
    // How many there are; makes no objects.
    [[nodiscard]] Result<qsizetype> count(const NSFetchRequest& request);

    // A new object with the entity's default values.
    std::shared_ptr<NSManagedObject> insert(const QString& entityName);
    template <typename T>
    std::shared_ptr<T> insert()
    {
        return std::static_pointer_cast<T>(insert(T::entityName()));
    }
    // An object of another context, or deleted before, is left alone.
    void deleteObject(const std::shared_ptr<NSManagedObject>& object);

    [[nodiscard]] bool hasChanges() const { return !unsaved.isEmpty(); }
    // How many objects wait for a save.
    [[nodiscard]] std::size_t changeCount() const { return unsaved.count(); }
    // The short description of each of them.
    [[nodiscard]] QStringList describeChanges() const;
    // Without changes this does nothing. A saved change survives the end of the process, and the loss of
    // power. Waits for another program's lock for at most half a second. Fails with `isStoreReplaced` when
    // the file at the store's path is no longer the one that is open.
    [[nodiscard]] Status save();
    // The same, but waits for no lock.
    [[nodiscard]] Status trySave();

    // Lets go of every object, as if its record was deleted elsewhere, and of every unsaved change: no object
    // fetched before is ever saved again. For when the store's content was replaced as a whole.
    void reset();

    // Calls `handler` after each attempt to save, with its outcome, for as long as the context lives.
    void addSaveHandler(SaveHandler handler) { saveHandlers.push_back(std::move(handler)); }

private:
    friend class NSManagedObject;

    using Sink = std::function<void(std::shared_ptr<NSManagedObject>)>;

    // What objects tell and ask.
    void noteChange(NSManagedObject& object) { unsaved.note(object); }
    void forget(const NSManagedObject& object);
    [[nodiscard]] std::optional<QByteArray> storedBinary(const NSManagedObject& object, int index);

    [[nodiscard]] Status collect(const NSFetchRequest& request, const Sink& sink);
    [[nodiscard]] EntityTable& requireTable(const QString& entityName) const;
    [[nodiscard]] Status attemptSave(std::chrono::milliseconds patience);
    [[nodiscard]] Status writeAndCommit(std::chrono::milliseconds patience);
    [[nodiscard]] Status flush(std::chrono::milliseconds patience);
    void flushIfPossible();
    [[nodiscard]] Status begin(std::chrono::milliseconds patience);
    void noticeRollback();
    void forgetUnsaved();
    void settle();
    [[nodiscard]] Status setRelaxed(bool relaxed);
    void endBulkScope();
    void endRelaxed();

    std::unique_ptr<Database> database;
    std::vector<std::unique_ptr<EntityTable>> tables;
    UnsavedChanges unsaved;
    bool transactionOpen = false;
    int bulkScopes = 0;
    bool isRelaxed = false;
    // The checkpoint that ends a relaxed run failed.
    bool owesCheckpoint = false;
    // Within a bulk scope only.
    RefusedSaves refused;
    StorePlace place;
    std::vector<SaveHandler> saveHandlers;
};

// For a run of very many saves. While it lives a save survives the end of the process, but perhaps not the
// loss of power; when it ends, the whole run is made to survive that too (when changes are left unsaved: with
// their save). Once the store has refused a save, the run waits for no lock any more, and tries what waits
// again only when twice as many changes wait: a run of refused saves takes linear time. The context outlives
// it.
class NSManagedObjectContext::BulkSaves
{
public:
    explicit BulkSaves(NSManagedObjectContext& relaxed)
        : context(relaxed)
    {
        ++context.bulkScopes;
    }
    ~BulkSaves() { context.endBulkScope(); }
    BulkSaves(const BulkSaves&) = delete;
    BulkSaves& operator=(const BulkSaves&) = delete;

private:
    NSManagedObjectContext& context;
};

template <typename T>
Result<std::vector<std::shared_ptr<T>>> NSManagedObjectContext::fetch(const NSFetchRequest& request)
{
    if constexpr (!std::is_same_v<T, NSManagedObject>) {
        if (request.entityName != T::entityName())
            fatalError(QStringLiteral("A request for %1 was fetched as %2")
                           .arg(request.entityName, T::entityName()));
    }
    std::vector<std::shared_ptr<T>> objects;
    const auto collected = collect(request, [&](std::shared_ptr<NSManagedObject> object) {
        objects.push_back(std::static_pointer_cast<T>(std::move(object)));
    });
    if (!collected)
        return collected.error();
    return objects;
}
