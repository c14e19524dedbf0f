#pragma once

#include "platform/foundation/Result.h"

#include <QByteArray>
#include <QString>
#include <optional>

// Files on their way out, in the platform's directory for temporary ones, which other users may write to as
// well.

[[nodiscard]] QString temporaryFilePath(const QString& name);

// Writes `text` in UTF-8, whole or not at all, for the user's eyes only. A link at `path` isn't followed.
[[nodiscard]] Status writeTemporaryFile(const QString& path, const QString& text);

// Absent where it can't be read.
[[nodiscard]] std::optional<QByteArray> bytesOfTemporaryFile(const QString& path);
