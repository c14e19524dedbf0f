#include "platform/store/StoreFile.h"

#include "platform/store/Database.h"
#include "platform/store/Migrations.h"
#include "platform/store/StoreFiles.h"
#include "platform/store/StoreGeneration.h"

#include <QFile>

namespace {

constexpr auto forOwner = QFile::ReadOwner | QFile::WriteOwner;
constexpr auto forOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                           QFile::WriteOther | QFile::ExeOther;

NSError refusal(const QString& sentence)
{
    return {sentence, {}};
}

NSError readOnlyRefusal()
{
    return refusal(QStringLiteral("The store cannot be written to."));
}

// An empty database is accepted too: it is what is left when the making of a store was cut short.
Status checkOwnership(Database& database, const NSManagedObjectModel& model)
{
    const auto application = database.number("PRAGMA application_id");
    const auto version = database.number("PRAGMA user_version");
    const auto parts = database.number("SELECT COUNT(*) FROM sqlite_schema");
    for (const auto& answer : {application, version, parts}) {
        if (!answer)
            return answer.error();
    }
    const auto isFresh = application.value() == 0 && version.value() == 0 && parts.value() == 0;
    if (!isFresh && application.value() != model.applicationId)
        return refusal(QStringLiteral("The file is not a store of this program."));
    if (version.value() > model.version())
        return refusal(QStringLiteral("The store was made by a newer version of this program."));
    return success();
}

bool hasSideFile(const QString& path)
{
    return hasLog(path) || StoreFiles::current().exists(path + QStringLiteral("-journal"));
}

// Looks at the database without SQLite's usual traces. A file with a log of its own makes sense only together
// with it: the log holds the latest pages, and a checkpoint that was cut short leaves some of them in the
// file. While another connection uses the file, the look of `inspectInUse` leaves no traces either, because
// its side files exist.
Status inspectUntouched(const QString& path, const NSManagedObjectModel& model, bool withSideFiles)
{
    if (StoreFiles::current().size(path) == 0)
        return success();
    const auto access =
        withSideFiles && hasSideFile(path) ? Database::Access::Alone : Database::Access::Untouched;
    const auto opened = Database::open(path, access);
    if (!opened)
        return opened.error();
    if (access == Database::Access::Alone && opened.value()->isReadOnly())
        return readOnlyRefusal();
    const auto checked = checkOwnership(*opened.value(), model);
    return !checked && Database::isBusy(checked.error()) ? success() : checked;
}

// The same look on the connection that is to stay: another program may have used the file since. Until it is
// over, nothing is written and closing moves nothing.
Status inspectInUse(Database& database, const NSManagedObjectModel& model)
{
    if (database.isReadOnly())
        return readOnlyRefusal();
    database.setCheckpointsOnClose(false);
    const auto checked = checkOwnership(database, model);
    database.setCheckpointsOnClose(checked.ok());
    return checked;
}

// Files that an older version or a copy left readable for others.
void keepToOwner(const QString& path)
{
    for (const auto* suffix : {"", "-wal", "-shm"}) {
        QFile file(path + QLatin1String(suffix));
        if (file.exists() && (file.permissions() & forOthers) != 0)
            file.setPermissions(forOwner);
    }
}

// A file without a version is being made, not migrated.
bool isOlder(Database& database, const NSManagedObjectModel& model)
{
    const auto version = database.number("PRAGMA user_version");
    return version && version.value() > 0 && version.value() < model.version();
}

Status makeReady(Database& database, const NSManagedObjectModel& model,
                 const std::function<void()>& beforeMigration)
{
    if (const auto inspected = inspectInUse(database, model); !inspected)
        return inspected;
    keepToOwner(database.path());
    for (const auto* setting :
         {"PRAGMA trusted_schema = OFF", "PRAGMA journal_mode = WAL", "PRAGMA synchronous = FULL"}) {
        if (const auto set = database.run(setting); !set)
            return set;
    }
    if (beforeMigration && isOlder(database, model))
        beforeMigration();
    const auto migrated = migrate(database, model);
    return migrated ? database.run("PRAGMA foreign_keys = ON") : migrated;
}

} // namespace

Result<std::unique_ptr<Database>> openStoreFile(const QString& path, const NSManagedObjectModel& model,
                                                const std::function<void()>& beforeMigration)
{
    const auto withPath = [&](NSError error) {
        error.userInfo.insert(QStringLiteral("path"), path);
        return error;
    };
    if (const auto prepared = StoreFiles::current().prepare(path); !prepared)
        return withPath(prepared.error());
    const bool isLogOurs = !hasLog(path) || logBelongsToFile(path);
    if (const auto inspected = inspectUntouched(path, model, isLogOurs); !inspected)
        return withPath(inspected.error());
    if (const auto cleared = isLogOurs ? success() : putLogAside(path); !cleared)
        return withPath(cleared.error());
    auto opened = Database::open(path, Database::Access::ReadWrite);
    if (!opened)
        return withPath(opened.error());
    auto database = std::move(opened).value();
    if (const auto ready = makeReady(*database, model, beforeMigration); !ready)
        return withPath(ready.error());
    return database;
}
