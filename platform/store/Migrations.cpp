#include "platform/store/Migrations.h"

#include "platform/store/Database.h"

namespace {

Status runAll(Database& database, const QByteArrayList& statements)
{
    for (const auto& statement : statements) {
        if (const auto run = database.run(statement); !run)
            return run;
    }
    return success();
}

// The version is asked again here: another process may have been faster to get the write lock.
Status takeNextStep(Database& database, const NSManagedObjectModel& model)
{
    const auto version = database.number("PRAGMA user_version");
    if (!version || version.value() >= model.version())
        return version ? success() : Status(version.error());
    const auto& migration = model.migrations[static_cast<std::size_t>(version.value())];
    auto statements = migration.statements;
    statements << "PRAGMA user_version = " + QByteArray::number(version.value() + 1)
               << "PRAGMA application_id = " + QByteArray::number(model.applicationId);
    const auto taken = runAll(database, statements);
    if (taken)
        return taken;
    auto error = taken.error();
    error.userInfo.insert(QStringLiteral("migration"), migration.name);
    return error;
}

Status takeStepInTransaction(Database& database, const NSManagedObjectModel& model)
{
    if (const auto begun = database.run("BEGIN IMMEDIATE"); !begun)
        return begun;
    auto taken = takeNextStep(database, model);
    if (taken)
        taken = database.run("COMMIT");
    if (taken || !database.inTransaction())
        return taken;
    // Ignored: the step's own error is the one to report, and closing the database rolls back as well.
    (void)database.run("ROLLBACK").ok();
    return taken;
}

} // namespace

Status migrate(Database& database, const NSManagedObjectModel& model)
{
    // Dropping a table that is to be replaced would take along the rows that refer to it. The setting has no
    // effect within a transaction.
    if (const auto set = database.run("PRAGMA foreign_keys = OFF"); !set)
        return set;
    for (;;) {
        const auto version = database.number("PRAGMA user_version");
        if (!version)
            return version.error();
        if (version.value() >= model.version())
            return success();
        if (const auto taken = takeStepInTransaction(database, model); !taken)
            return taken;
    }
}
