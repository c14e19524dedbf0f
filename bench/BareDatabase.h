#pragma once

#include <QByteArrayView>
#include <memory>
#include <sqlite3.h>
#include <string>

struct FinalizeBare
{
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using BareStatement = std::unique_ptr<sqlite3_stmt, FinalizeBare>;

// SQLite with nothing around it: what the store is measured against. Whatever fails is a BenchError.
class BareDatabase
{
public:
    explicit BareDatabase(const QString& path);

    void run(const char* sql);
    [[nodiscard]] BareStatement prepare(const std::string& sql);
    // True: there is a row.
    bool step(const BareStatement& statement);
    // Steps to the end and makes the statement ready for its next use.
    void finish(const BareStatement& statement);

private:
    struct Close
    {
        void operator()(sqlite3* handle) const { sqlite3_close(handle); }
    };

    void require(bool isFine) const;

    std::unique_ptr<sqlite3, Close> handle;
};

// What is bound must last until the statement is finished.
void bindBare(const BareStatement& statement, int parameter, const std::string& text);
