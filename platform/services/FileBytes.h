#pragma once

#include "platform/foundation/Result.h"

class QFileDevice;

// All of these run on any thread.

[[nodiscard]] Result<QByteArray> readFile(const QString& path);

// Appends what the file at `path` holds to `target`, which is open, piece by piece.
[[nodiscard]] Status copyBytes(const QString& path, QFileDevice& target);

// Puts a copy of the file at `path` in the place of `copy`, whole or not at all.
[[nodiscard]] Status copyFile(const QString& path, const QString& copy);
