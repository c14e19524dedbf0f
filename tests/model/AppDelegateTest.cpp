#include "model/AppDelegate.h"
#include "model/Movies.h"
#include "tests/support/FullDisk.h"

#include <QDir>
#include <csignal>

namespace {

QString storePath()
{
    return qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/marrowvale/Marrowvale.sqlite");
}

void addMovie(AppDelegate& delegate)
{
    delegate.persistentContainer().viewContext().insert<Movies>()->setMovieName(QStringLiteral("Ran"));
}

} // namespace

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
