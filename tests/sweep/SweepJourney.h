#pragma once

#include "platform/store/NSPersistentContainer.h"
#include "tests/sweep/SweptCatalogue.h"

#include <span>

class Movies;

// The life of a store, stage by stage, with what must be in it. A stage opens the store, works on it and
// leaves it open. What fails is tried again after `onFailure`, and throws std::runtime_error if it fails
// then; a save that fails is left to the next one.
class SweepJourney
{
public:
    struct Stage
    {
        const char* name;
        void (SweepJourney::*run)();
        // The store is a file that the first version of the program made, not the one that the stage before
        // left.
        bool fromOldestFile = false;
    };
    [[nodiscard]] static std::span<const Stage> stages();

    explicit SweepJourney(QString storeDirectory)
        : directory(std::move(storeDirectory))
    {
    }

    // Calls `onFailure`, adds a film and saves all that is unsaved, which must succeed. Opens the store if
    // need be.
    void settle();
    void close() { container.reset(); }
    // Null while no store is open.
    [[nodiscard]] NSManagedObjectContext* context() const;

    SweptCatalogue catalogue;
    int importedLines = 12;

    // Called before a save, with all that will be saved by it; after it succeeded, and whether that survives
    // the loss of power; and when a lasting fault is to end.
    std::function<void(const QByteArrayList& lines)> onSaving = [](const QByteArrayList& /*lines*/) {};
    std::function<void(bool survivesPowerLoss)> onSaved = [](bool /*survivesPowerLoss*/) {};
    std::function<void()> onFailure = [] {};

private:
    void launch();
    void add();
    void edit();
    void import();
    void remove();
    void rename();
    void open();
    bool save(bool survivesPowerLoss = true);
    void importLine(const QString& title, int year, const QByteArray& cover);
    [[nodiscard]] std::vector<std::shared_ptr<Movies>> find(const QString& title);
    template <typename Work>
    auto secondTry(Work work);

    QString directory;
    std::unique_ptr<NSPersistentContainer> container;
};
