#pragma once

#include <QString>

// Makes the program's own store in the data directory `dataHome` and fills it with `movieCount` sample
// movies, covers and all, without going through the program.
void makeSampleCatalogue(const QString& dataHome, int movieCount);

// Where the store in a data directory is.
[[nodiscard]] QString storeDirectory(const QString& dataHome);
[[nodiscard]] QString storeFile(const QString& dataHome);
