#include "tour/StoreFile.h"

#include "tour/TourError.h"

#include <QStandardPaths>
#include <memory>
#include <sqlite3.h>

namespace {

using Connection = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;
using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

Connection openedForReading()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QByteArray path = (folder + "/marrowvale/Marrowvale.sqlite").toUtf8();
    sqlite3* opened = nullptr;
    const int status = sqlite3_open_v2(path.constData(), &opened, SQLITE_OPEN_READONLY, nullptr);
    Connection connection(opened, &sqlite3_close);
    if (status != SQLITE_OK)
        throw TourError("There is no catalogue at " + QString::fromUtf8(path));
    return connection;
}

Statement prepared(sqlite3* connection, const QString& sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection, sql.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK)
        throw TourError(sql + ": " + QString::fromUtf8(sqlite3_errmsg(connection)));
    return {statement, &sqlite3_finalize};
}

} // namespace

QStringList StoreFile::column(const QString& sql)
{
    const Connection connection = openedForReading();
    const Statement statement = prepared(connection.get(), sql);
    QStringList texts;
    while (sqlite3_step(statement.get()) == SQLITE_ROW)
        texts.append(
            QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), 0))));
    return texts;
}

int StoreFile::number(const QString& sql)
{
    return column(sql).value(0).toInt();
}
