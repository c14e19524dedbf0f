#pragma once

#include "platform/foundation/Result.h"

#include <QByteArray>
#include <QString>
#include <optional>

// Files on their way out, in the device's directory for temporary ones.

[[nodiscard]] QString temporaryFilePath(const QString& name);

// Writes `text` in UTF-8. When it fails, no file is left at `path`, so that no earlier one is taken for it.
[[nodiscard]] Status writeTemporaryFile(const QString& path, const QString& text);

// Absent where it can't be read.
[[nodiscard]] std::optional<QByteArray> bytesOfTemporaryFile(const QString& path);
