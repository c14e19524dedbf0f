#pragma once

#include "platform/foundation/Result.h"

#include <QByteArray>

enum class FileReaders { AsUsual, OwnerOnly };

// Writes `content` to `path` whole or not at all: when it fails, what stood there stays.
[[nodiscard]] Status writeAtomically(const QByteArray& content, const QString& path,
                                     FileReaders readers = FileReaders::AsUsual);
