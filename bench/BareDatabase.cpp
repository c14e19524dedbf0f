#include "bench/BareDatabase.h"

#include "bench/BenchError.h"

BareDatabase::BareDatabase(const QString& path)
{
    sqlite3* opened = nullptr;
    const auto code = sqlite3_open_v2(path.toUtf8().constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    handle.reset(opened);
    require(code == SQLITE_OK);
}

void BareDatabase::require(bool isFine) const
{
    if (!isFine)
        throw BenchError(QStringLiteral("SQLite: ") + QString::fromUtf8(sqlite3_errmsg(handle.get())));
}

void BareDatabase::run(const char* sql)
{
    require(sqlite3_exec(handle.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK);
}

BareStatement BareDatabase::prepare(const std::string& sql)
{
    sqlite3_stmt* prepared = nullptr;
    require(sqlite3_prepare_v3(handle.get(), sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &prepared,
                               nullptr) == SQLITE_OK);
    return BareStatement(prepared);
}

bool BareDatabase::step(const BareStatement& statement)
{
    const auto code = sqlite3_step(statement.get());
    require(code == SQLITE_ROW || code == SQLITE_DONE);
    return code == SQLITE_ROW;
}

void BareDatabase::finish(const BareStatement& statement)
{
    while (step(statement)) {
    }
    sqlite3_reset(statement.get());
}

void bindBare(const BareStatement& statement, int parameter, const std::string& text)
{
    sqlite3_bind_text(statement.get(), parameter, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}
