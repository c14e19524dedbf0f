#include "model/AppDelegate.h"
#include "model/Movies.h"
#include "tests/support/FullDisk.h"

#include <QDir>
#include <QFileInfo>
#include <csignal>

namespace {

QString storePath()
{
    return qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/marrowvale/Marrowvale.sqlite");
}

QByteArray storeBytes()
{
    QFile file(storePath());
    QFile log(storePath() + QStringLiteral("-wal"));
    EXPECT_TRUE(file.open(QFile::ReadOnly) && log.open(QFile::ReadOnly));
    return file.readAll() + log.readAll();
}

void addMovie(AppDelegate& delegate)
{
    delegate.persistentContainer().viewContext().insert<Movies>()->setMovieName(QStringLiteral("Ran"));
}

} // namespace

TEST(AppDelegate, OpensTheStoreAtFirstUseAndKeepsIt)
{
    AppDelegate delegate;
    EXPECT_TRUE(delegate.didFinishLaunchingWithOptions());
    EXPECT_FALSE(QFileInfo::exists(storePath()));
    auto& container = AppDelegate::shared().persistentContainer();
    EXPECT_EQ(&container, &delegate.persistentContainer());
    EXPECT_TRUE(QFileInfo::exists(storePath()));
}

TEST(AppDelegate, SaveContextSavesOnlyChanges)
{
    AppDelegate delegate;
    addMovie(delegate);
    delegate.saveContext();
    EXPECT_FALSE(delegate.persistentContainer().viewContext().hasChanges());
    const auto saved = storeBytes();
    delegate.saveContext();
    EXPECT_EQ(storeBytes(), saved);
    addMovie(delegate);
    delegate.saveContext();
    EXPECT_NE(storeBytes(), saved);
}

TEST(AppDelegate, WhatItSavedIsThereInTheNextRun)
{
    for (const std::size_t saved : {0U, 1U}) {
        AppDelegate delegate;
        auto& context = delegate.persistentContainer().viewContext();
        const auto movies = context.fetch<Movies>(Movies::fetchRequest());
        ASSERT_TRUE(movies);
        ASSERT_EQ(movies.value().size(), saved);
        addMovie(delegate);
        delegate.saveContext();
    }
}

TEST(AppDelegateDeathTest, AStoreThatCannotBeOpenedEndsTheProgram)
{
    const auto openDirectoryInPlaceOfStore = [] {
        QDir().mkpath(storePath());
        AppDelegate().persistentContainer();
    };
    EXPECT_EXIT(openDirectoryInPlaceOfStore(), testing::KilledBySignal(SIGABRT),
                "Fatal error: Unresolved error .+, \\{.+ = .+\\}\n");
}

TEST(AppDelegateDeathTest, AFailedSaveEndsTheProgram)
{
    const auto saveOnFullDisk = [] {
        AppDelegate delegate;
        addMovie(delegate);
        // Enough for the message, and less than the store already has.
        const FullDisk disk(4096);
        delegate.saveContext();
    };
    EXPECT_EXIT(saveOnFullDisk(), testing::KilledBySignal(SIGABRT),
                "Fatal error: Unresolved error .+, \\{.+ = .+\\}\n");
}

TEST(AppDelegateDeathTest, NoDelegateIsFatal)
{
    {
        const AppDelegate past;
    }
    EXPECT_DEATH(AppDelegate::shared(), "Fatal error: There is no application delegate");
}
