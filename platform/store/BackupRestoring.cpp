// How a backup becomes the store's content again.
#include "platform/store/BackupFacts.h"
#include "platform/store/BackupFolder.h"
#include "platform/store/Database.h"
#include "platform/store/Migrations.h"
#include "platform/store/StoreGeneration.h"

#include <QFile>

namespace {

// Brings the copy of a backup to the form that the store has. Its mark, if it has one, is another store's.
Status makeReady(const QString& copy, const NSManagedObjectModel& model)
{
    const auto opened = Database::open(copy, Database::Access::Existing);
    if (!opened)
        return opened.error();
    const auto migrated = migrate(*opened.value(), model);
    return migrated ? removeMarkWithin(*opened.value()) : migrated;
}

// One transaction: all pages go to the store's log, and count only with the last one. The mark beside the
// store goes first, since the new content has none: without a mark the log counts as the file's own.
Status replaceStore(const QString& store, const QString& copy)
{
    const auto source = Database::open(copy, Database::Access::Existing);
    if (!source)
        return source.error();
    const auto target = Database::open(store, Database::Access::Existing);
    if (!target)
        return target.error();
    if (const auto set = target.value()->run("PRAGMA synchronous = FULL"); !set)
        return set;
    return target.value()->replaceContent(*source.value(), [&] { return removeMarkBeside(store); });
}

} // namespace

Status BackupFolder::restore(const BackupName& backup, const NSManagedObjectModel& model) const
{
    const auto entered = enter();
    if (!entered)
        return entered.error();
    const QString copy = pathOf(backup) + QStringLiteral(".part");
    QFile original(pathOf(backup));
    if (!original.copy(copy))
        return NSError{original.errorString(), {{QStringLiteral("path"), pathOf(backup)}}};
    // The copy is judged, not the file: that may change or go away at any time.
    const BackupState state = inspectBackup(copy, model, {}).state;
    Status restored = state == BackupState::Sound ? makeReady(copy, model) : NSError{sentenceFor(state), {}};
    if (restored)
        restored = replaceStore(store, copy);
    removeLeftovers();
    return restored;
}
