#pragma once

#include "model/CatalogueKeeper.h"
#include "platform/store/NSPersistentContainer.h"

// The application's one delegate: it owns the catalogue's store. While it lives it is the shared one, so
// there is at most one at a time; screens must not outlive it. When it is destroyed it tries once more to
// save what was refused, and lists on standard error what is lost.
class AppDelegate
{
public:
    AppDelegate();
    ~AppDelegate();
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    // Where the store lies; it need not exist.
    [[nodiscard]] static QString catalogueFolder();

    // A fatal error when there is none.
    static AppDelegate& shared();

    // True, always; whatever needs the store opens it by using it.
    bool didFinishLaunchingWithOptions();

    // The container "Marrowvale" in the user's data directory. The first call opens it; a store that cannot
    // be opened is a fatal error.
    NSPersistentContainer& persistentContainer();

    // Keeps trying what the store refused.
    CatalogueKeeper& keeper() { return catalogueKeeper; }

    // Saves the view context when it has changes; a save that fails is a fatal error.
    void saveContext();

private:
    std::unique_ptr<NSPersistentContainer> container;
    CatalogueKeeper catalogueKeeper;
};
