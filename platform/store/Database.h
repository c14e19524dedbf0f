#pragma once

#include "platform/foundation/Result.h"

#include <QByteArray>
#include <QDateTime>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

// One run of a prepared statement. Values are bound in order, the first to the first parameter, and never
// become part of the statement's text. The statement goes back to its database when the query ends: before
// the database does, and before the same text is queried again. Whatever went wrong before the first `step`
// is what that step reports.
class Query
{
public:
    explicit Query(sqlite3_stmt* prepared)
        : statement(prepared)
    {
    }
    explicit Query(NSError whyNot)
        : failure(std::move(whyNot))
    {
    }

    void bind(qint64 number);
    void bind(const QString& text);
    void bind(const QDateTime& moment);
    void bindBlob(const QByteArray& bytes);
    void bindNull();

    // To the next row; false when there is none. Of a statement without rows: runs it.
    [[nodiscard]] Result<bool> step();

    // Calls `visit` at every row, to the last.
    template <typename Visit>
    [[nodiscard]] Status forEachRow(Visit visit);
    // To the end of a statement whose rows do not matter.
    [[nodiscard]] Status run()
    {
        return forEachRow([] {});
    }

    // The columns of the present row, from 0. Views last until the next step.
    [[nodiscard]] bool isNull(int column) const;
    [[nodiscard]] qint64 number(int column) const;
    [[nodiscard]] QByteArrayView text(int column) const;
    [[nodiscard]] QByteArrayView blob(int column) const;

private:
    struct Release
    {
        void operator()(sqlite3_stmt* statement) const;
    };

    void noteBinding(int code);

    std::unique_ptr<sqlite3_stmt, Release> statement;
    int parameters = 0;
    std::optional<NSError> failure;
};

template <typename Visit>
Status Query::forEachRow(Visit visit)
{
    for (;;) {
        const auto stepped = step();
        if (!stepped)
            return stepped.error();
        if (!stepped.value())
            return success();
        visit();
    }
}

// One connection to a database file, for one thread. Prepared statements are kept by their text. Errors carry
// SQLite's extended code and message in their userInfo.
class Database
{
public:
    enum class Access {
        // Reads and writes, and makes the file when it is missing. Waits for another writer, at first for
        // five seconds (`setPatience`).
        ReadWrite,
        // The same, but fails when the file is missing.
        Existing,
        // Reads the file as it lies there, without its log; takes no lock and leaves no trace. Only a file
        // without a log is sure to be whole.
        Untouched,
        // Reads the file through its log and leaves no trace: the index of the log stays in memory, and
        // closing
        // moves nothing. Fails with SQLITE_BUSY as soon as another connection holds the file. A write that
        // was
        // cut short (there is a journal) is undone by the first read.
        Alone
    };

    [[nodiscard]] static Result<std::unique_ptr<Database>> open(const QString& path, Access access);

    [[nodiscard]] Query query(const QByteArray& sql);
    [[nodiscard]] Status run(const QByteArray& sql) { return query(sql).run(); }
    // The first column of the first row; 0 without rows.
    [[nodiscard]] Result<qint64> number(const QByteArray& sql);

    // False also when SQLite itself gave the transaction up, as it may when the disk is full.
    [[nodiscard]] bool inTransaction() const;
    [[nodiscard]] qint64 lastInsertId() const;
    [[nodiscard]] bool isReadOnly() const;
    // The absolute path that was opened.
    [[nodiscard]] QString path() const;
    // Whether that path now leads to another file or to none.
    [[nodiscard]] bool isMovedAway() const;
    // How long a statement waits for another connection's lock before it fails.
    void setPatience(std::chrono::milliseconds longest);
    // Whether `error` came of another connection's lock.
    [[nodiscard]] static bool isBusy(const NSError& error);
    // Puts the content of `source`, all of it, in the place of this database's, in one transaction of each.
    // No statement of this connection may be under way. Calls `whenLocked`, if given, once no other
    // connection can write here and before anything is written: if it fails, nothing is. The copy says like
    // `source` in its header whether it has a log.
    [[nodiscard]] Status replaceContent(Database& source, const std::function<Status()>& whenLocked = {});
    // Success when every page and row is as it should be (`quick_check`); reads the whole file.
    [[nodiscard]] Status check();
    // Whether closing the last connection moves the log into the file (it does) or leaves both as they are.
    void setCheckpointsOnClose(bool on);

private:
    struct Close
    {
        void operator()(sqlite3* handle) const;
    };
    struct Finalize
    {
        void operator()(sqlite3_stmt* statement) const;
    };

    explicit Database(sqlite3* opened)
        : handle(opened)
    {
    }

    std::unique_ptr<sqlite3, Close> handle;
    std::unordered_map<QByteArray, std::unique_ptr<sqlite3_stmt, Finalize>> statements;
};
