#include "platform/store/Database.h"

#include <QUrl>
#include <sqlite3.h>

namespace {

constexpr std::chrono::seconds firstPatience(5);

NSError sqliteError(sqlite3* handle)
{
    const auto message = QString::fromUtf8(sqlite3_errmsg(handle));
    return {QStringLiteral("The store reported: %1.").arg(message),
            {{QStringLiteral("SQLiteCode"), sqlite3_extended_errcode(handle)},
             {QStringLiteral("SQLiteMessage"), message}}};
}

} // namespace

void Query::Release::operator()(sqlite3_stmt* statement) const
{
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
}

// Without a statement the code only says so.
void Query::noteBinding(int code)
{
    if (code == SQLITE_OK || failure)
        return;
    const auto message = QString::fromUtf8(sqlite3_errstr(code));
    failure = NSError{QStringLiteral("A value could not be stored: %1.").arg(message),
                      {{QStringLiteral("SQLiteCode"), code}}};
}

void Query::bind(qint64 number)
{
    noteBinding(sqlite3_bind_int64(statement.get(), ++parameters, number));
}

void Query::bind(const QString& text)
{
    const auto bytes = text.toUtf8();
    noteBinding(sqlite3_bind_text64(statement.get(), ++parameters, bytes.constData(),
                                    static_cast<sqlite3_uint64>(bytes.size()), SQLITE_TRANSIENT,
                                    SQLITE_UTF8));
}

void Query::bind(const QDateTime& moment)
{
    bind(moment.toMSecsSinceEpoch());
}

void Query::bindBlob(const QByteArray& bytes)
{
    noteBinding(sqlite3_bind_blob64(statement.get(), ++parameters, bytes.constData(),
                                    static_cast<sqlite3_uint64>(bytes.size()), SQLITE_TRANSIENT));
}

void Query::bindNull()
{
    noteBinding(sqlite3_bind_null(statement.get(), ++parameters));
}

Result<bool> Query::step()
{
    if (failure)
        return *failure;
    switch (sqlite3_step(statement.get())) {
    case SQLITE_ROW:
        return true;
    case SQLITE_DONE:
        return false;
    default:
        return sqliteError(sqlite3_db_handle(statement.get()));
    }
}

bool Query::isNull(int column) const
{
    return sqlite3_column_type(statement.get(), column) == SQLITE_NULL;
}

qint64 Query::number(int column) const
{
    return sqlite3_column_int64(statement.get(), column);
}

QByteArrayView Query::text(int column) const
{
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), column));
    return {bytes, static_cast<qsizetype>(sqlite3_column_bytes(statement.get(), column))};
}

QByteArrayView Query::blob(int column) const
{
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement.get(), column));
    return {bytes, static_cast<qsizetype>(sqlite3_column_bytes(statement.get(), column))};
}

void Database::Close::operator()(sqlite3* handle) const
{
    sqlite3_close(handle);
}

void Database::Finalize::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

Result<std::unique_ptr<Database>> Database::open(const QString& path, Access access)
{
    auto address = QUrl::fromLocalFile(path).toEncoded();
    auto flags = SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
    if (access == Access::Untouched) {
        address += "?immutable=1";
        flags |= SQLITE_OPEN_READONLY;
    } else {
        flags |= SQLITE_OPEN_READWRITE | (access == Access::Existing ? 0 : SQLITE_OPEN_CREATE);
    }
    sqlite3* handle = nullptr;
    const auto code = sqlite3_open_v2(address.constData(), &handle, flags, nullptr);
    std::unique_ptr<Database> database(new Database(handle));
    if (code != SQLITE_OK)
        return sqliteError(handle);
    if (access != Access::Alone) {
        database->setPatience(firstPatience);
        return database;
    }
    database->setCheckpointsOnClose(false);
    // Before the first read, this also keeps the index of the log out of the file system.
    if (const auto set = database->run("PRAGMA locking_mode = EXCLUSIVE"); !set)
        return set.error();
    return database;
}

Query Database::query(const QByteArray& sql)
{
    auto& kept = statements[sql];
    if (!kept) {
        sqlite3_stmt* prepared = nullptr;
        sqlite3_prepare_v3(handle.get(), sql.constData(), static_cast<int>(sql.size()) + 1,
                           SQLITE_PREPARE_PERSISTENT, &prepared, nullptr);
        if (!prepared) {
            statements.erase(sql);
            return Query(sqliteError(handle.get()));
        }
        kept.reset(prepared);
    }
    return Query(kept.get());
}

Result<qint64> Database::number(const QByteArray& sql)
{
    auto asking = query(sql);
    const auto stepped = asking.step();
    if (!stepped)
        return stepped.error();
    return stepped.value() ? asking.number(0) : 0;
}

bool Database::inTransaction() const
{
    return sqlite3_get_autocommit(handle.get()) == 0;
}

qint64 Database::lastInsertId() const
{
    return sqlite3_last_insert_rowid(handle.get());
}

bool Database::isReadOnly() const
{
    return sqlite3_db_readonly(handle.get(), "main") == 1;
}

QString Database::path() const
{
    return QString::fromUtf8(sqlite3_db_filename(handle.get(), "main"));
}

bool Database::isMovedAway() const
{
    int moved = 0;
    return sqlite3_file_control(handle.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK &&
           moved != 0;
}

void Database::setPatience(std::chrono::milliseconds longest)
{
    sqlite3_busy_timeout(handle.get(), static_cast<int>(longest.count()));
}

bool Database::isBusy(const NSError& error)
{
    constexpr int primaryCode = 0xff;
    return (error.userInfo.value(QStringLiteral("SQLiteCode")).toInt() & primaryCode) == SQLITE_BUSY;
}

Status Database::replaceContent(Database& source, const std::function<Status()>& whenLocked)
{
    auto* copying = sqlite3_backup_init(handle.get(), "main", source.handle.get(), "main");
    if (!copying)
        return sqliteError(handle.get());
    // Locks without copying. A page that can't be copied is reported by the end.
    Status prepared = success();
    if (sqlite3_backup_step(copying, 0) == SQLITE_OK) {
        prepared = whenLocked ? whenLocked() : success();
        if (prepared)
            sqlite3_backup_step(copying, -1);
    }
    const bool isCopied = sqlite3_backup_remaining(copying) == 0;
    const auto code = sqlite3_backup_finish(copying);
    if (!prepared)
        return prepared;
    if (code != SQLITE_OK)
        return sqliteError(handle.get());
    return isCopied ? success() : NSError{QStringLiteral("The store could not be copied whole."), {}};
}

Status Database::check()
{
    auto checking = query("PRAGMA quick_check(1)");
    const auto stepped = checking.step();
    if (!stepped)
        return stepped.error();
    const auto answer = QString::fromUtf8(checking.text(0));
    if (answer == QLatin1String("ok"))
        return success();
    return NSError{QStringLiteral("The store is damaged."), {{QStringLiteral("quick_check"), answer}}};
}

void Database::setCheckpointsOnClose(bool on)
{
    sqlite3_db_config(handle.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, on ? 0 : 1, nullptr);
}
