#pragma once

#include "platform/store/NSManagedObjectContext.h"

class StoreRest;

// A store file and the context through which everything in it is read and written. The model outlives the
// container. While it lives, and when it is destroyed, the log is moved into the file as `StoreRest` says.
class NSPersistentContainer
{
public:
    // Also the name of the file, <name>.sqlite.
    NSPersistentContainer(QString name, const NSManagedObjectModel& model);
    ~NSPersistentContainer();
    NSPersistentContainer(const NSPersistentContainer&) = delete;
    NSPersistentContainer& operator=(const NSPersistentContainer&) = delete;

    // Opens the file in `directory`, or makes both, readable by their owner alone, and brings an older file
    // to the model's version. When it cannot be opened, is no store of this model, or was made by a newer
    // version, that is the error, and the file stays exactly as it was. Several containers may open one file.
    [[nodiscard]] Status loadPersistentStores(const QString& directory);
    // In the user's data directory.
    [[nodiscard]] Status loadPersistentStores() { return loadPersistentStores(defaultDirectory()); }

    // Calls `handler` when a store is about to be migrated, before it is written to. For the next loading.
    void setMigrationHandler(std::function<void()> handler) { migrationHandler = std::move(handler); }
    // Must be called after another connection has replaced the content of the store as a whole: resets the
    // context and lets the log come to rest.
    void noteReplacedContent();

    [[nodiscard]] QString name() const { return containerName; }
    // $XDG_DATA_HOME/<name in lower case>.
    [[nodiscard]] QString defaultDirectory() const;
    // Where the store's file is in `directory`.
    [[nodiscard]] QString storePath(const QString& directory) const;

    // Only after the stores were loaded.
    [[nodiscard]] NSManagedObjectContext& viewContext() const;

private:
    QString containerName;
    const NSManagedObjectModel& managedObjectModel;
    std::function<void()> migrationHandler;
    std::unique_ptr<StoreRest> rest;
    std::unique_ptr<NSManagedObjectContext> context;
};
