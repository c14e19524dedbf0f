#pragma once

#include "platform/foundation/Result.h"

#include <QByteArray>
#include <functional>

class QFileDevice;

enum class FileReaders { AsUsual, OwnerOnly };

// Writes `content` to `path` whole or not at all: when it fails, what stood there stays.
[[nodiscard]] Status writeAtomically(const QByteArray& content, const QString& path,
                                     FileReaders readers = FileReaders::AsUsual);

// Does the same with whatever `write` writes to the file that it is called with. Nothing is replaced when
// `write` fails.
[[nodiscard]] Status replaceAtomically(const QString& path, FileReaders readers,
                                       const std::function<Status(QFileDevice&)>& write);

// Makes sure that the names in the folder of `path` survive a loss of power as they are now.
[[nodiscard]] Status syncFolderOf(const QString& path);

// Writes all of `content` to `file`, which must be open.
[[nodiscard]] Status writeAll(QFileDevice& file, QByteArrayView content);

// Returns when what was written to `file` is on the disk.
[[nodiscard]] Status syncToDisk(QFileDevice& file);
