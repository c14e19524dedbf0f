// How a context's changes reach the database: written into a transaction before anything is queried, made
// permanent by a save.
#include "platform/store/Database.h"
#include "platform/store/EntityTable.h"
#include "platform/store/NSManagedObjectContext.h"

namespace {

constexpr std::chrono::milliseconds noPatience(0);
constexpr std::chrono::milliseconds savePatience(500);

} // namespace

Status NSManagedObjectContext::flush(std::chrono::milliseconds patience)
{
    noticeRollback();
    while (const auto object = unsaved.next()) {
        if (const auto begun = begin(patience); !begun)
            return begun;
        if (const auto written = requireTable(object->entity().name).write(*object); !written) {
            noticeRollback();
            return written;
        }
        unsaved.markWritten(*object);
    }
    return success();
}

// What the store refuses, on a full disk for one, stays unsaved and unseen: better than a list that shows
// nothing, and better than one that waits for another program's lock.
void NSManagedObjectContext::flushIfPossible()
{
    if (refused.any())
        return;
    if (const auto flushed = flush(noPatience); !flushed)
        console(flushed.error().localizedDescription);
}

Status NSManagedObjectContext::begin(std::chrono::milliseconds patience)
{
    if (transactionOpen)
        return success();
    if (const auto set = setRelaxed(bulkScopes > 0); !set)
        return set;
    database->setPatience(patience);
    const auto begun = database->run("BEGIN IMMEDIATE");
    database->setPatience(savePatience);
    transactionOpen = begun.ok();
    return begun;
}

Status NSManagedObjectContext::save()
{
    return attemptSave(refused.any() ? noPatience : savePatience);
}

Status NSManagedObjectContext::trySave()
{
    return attemptSave(noPatience);
}

Status NSManagedObjectContext::attemptSave(std::chrono::milliseconds patience)
{
    if (!hasChanges())
        return success();
    if (!refused.isAttemptDue(changeCount()))
        return refused.error();
    Status saved = place.check(*database);
    if (saved)
        saved = writeAndCommit(patience);
    if (saved)
        refused.clear();
    else if (bulkScopes > 0)
        refused.note(saved.error(), changeCount());
    for (const auto& handler : saveHandlers)
        handler(saved);
    return saved;
}

Status NSManagedObjectContext::writeAndCommit(std::chrono::milliseconds patience)
{
    if (const auto flushed = flush(patience); !flushed)
        return flushed;
    if (transactionOpen) {
        if (const auto committed = database->run("COMMIT"); !committed) {
            noticeRollback();
            return committed;
        }
    }
    transactionOpen = false;
    settle();
    endRelaxed();
    return success();
}

void NSManagedObjectContext::settle()
{
    for (const auto& object : unsaved.takeAll()) {
        object->values.settle(object->entity());
        object->isNew = false;
    }
}

// SQLite may give up a whole transaction when it fails, on a full disk for one. What was written is then to
// be written again, and new objects stand for no row.
void NSManagedObjectContext::noticeRollback()
{
    if (!transactionOpen || database->inTransaction())
        return;
    transactionOpen = false;
    for (const auto& object : unsaved.takeAll()) {
        if (object->isNew) {
            requireTable(object->entity().name).forget(*object);
            object->recordId = 0;
        }
        if (!object->isNew || !object->isDeleted)
            unsaved.note(*object);
    }
    for (const auto& table : tables)
        table->distrustCounts();
}

Status NSManagedObjectContext::setRelaxed(bool relaxed)
{
    if (relaxed == isRelaxed)
        return success();
    const auto set = database->run(relaxed ? "PRAGMA synchronous = NORMAL" : "PRAGMA synchronous = FULL");
    isRelaxed = set ? relaxed : isRelaxed;
    return set;
}

// What was refused last may have room again.
void NSManagedObjectContext::endBulkScope()
{
    --bulkScopes;
    if (bulkScopes == 0 && refused.any()) {
        refused.clear();
        // Ignored: the save handler is called with the outcome.
        (void)trySave().ok();
    }
    endRelaxed();
}

// A checkpoint syncs the log before it copies it, and so makes the relaxed saves durable. One that fails is
// repeated after the next save: Linux reports a failed sync once and may drop what it could not write, so
// that the next save would stand in the log behind a gap. The repeated checkpoint writes every page to the
// main file.
void NSManagedObjectContext::endRelaxed()
{
    if (bulkScopes > 0 || transactionOpen || !(isRelaxed || owesCheckpoint))
        return;
    if (!setRelaxed(false))
        return;
    owesCheckpoint = !database->run("PRAGMA wal_checkpoint(FULL)").ok();
}
