#pragma once

#include "platform/foundation/Result.h"

#include <QByteArray>
#include <memory>

class QFileDevice;
class QIODevice;

// Bytes on their way to a file. Everything here runs on any thread, and none of it holds a whole file in
// memory.

// Returns the file at `path`, open for reading. It keeps its bytes even if `path` is removed or replaced.
[[nodiscard]] Result<std::shared_ptr<QIODevice>> openFile(const QString& path);
// Returns `bytes` as such a file.
[[nodiscard]] std::shared_ptr<QIODevice> openBytes(const QByteArray& bytes);

// Appends what `source` has left to `target`. Both must be open.
[[nodiscard]] Status copyBytes(QIODevice& source, QFileDevice& target);

// Puts what `source` has left in the place of the file at `path`, whole or not at all.
[[nodiscard]] Status saveBytes(QIODevice& source, const QString& path);
[[nodiscard]] Status copyFile(const QString& source, const QString& path);
