#pragma once

#include <QStringList>

// The catalogue's file, read as any SQLite tool reads it.
namespace StoreFile {

// Every row's first column as text, absent as "". A query that fails is a TourError.
[[nodiscard]] QStringList column(const QString& sql);
// The only value of the only row, as a number.
[[nodiscard]] int number(const QString& sql);

} // namespace StoreFile
