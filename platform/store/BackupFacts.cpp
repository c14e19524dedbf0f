#include "platform/store/BackupFacts.h"

#include "platform/store/Database.h"
#include "platform/store/StoreSchema.h"

namespace {

BackupState stateOf(Database& backup, const NSManagedObjectModel& model)
{
    const auto application = backup.number("PRAGMA application_id");
    const auto version = backup.number("PRAGMA user_version");
    if (!application || !version)
        return BackupState::Damaged;
    if (application.value() != model.applicationId)
        return BackupState::Foreign;
    if (version.value() > model.version())
        return BackupState::Newer;
    return backup.check() ? BackupState::Sound : BackupState::Damaged;
}

} // namespace

BackupFacts inspectBackup(const QString& path, const NSManagedObjectModel& model, const QString& counted)
{
    const auto opened = Database::open(path, Database::Access::Untouched);
    if (!opened || !opened.value()->run("PRAGMA trusted_schema = OFF"))
        return {BackupState::Damaged};
    BackupFacts facts{stateOf(*opened.value(), model)};
    if (facts.state != BackupState::Sound || counted.isEmpty())
        return facts;
    const auto records = opened.value()->number("SELECT COUNT(*) FROM " + quotedName(counted));
    return records ? BackupFacts{facts.state, records.value()} : BackupFacts{BackupState::Foreign};
}

QString sentenceFor(BackupState state)
{
    switch (state) {
    case BackupState::Damaged:
        return QStringLiteral("This backup is damaged.");
    case BackupState::Newer:
        return QStringLiteral("This backup was made by a newer version.");
    case BackupState::Foreign:
        return QStringLiteral("This backup is not a catalogue.");
    default:
        return {};
    }
}
