#pragma once

#include "platform/foundation/Result.h"

#include <QString>
#include <optional>

// Files on their way out, in the device's directory for temporary ones. They are written on any thread.

// Called on the main thread.
[[nodiscard]] QString temporaryFilePath(const QString& name);

// Writes `text` in UTF-8. When it fails, no file is left at `path`, so that no earlier one is taken for it.
[[nodiscard]] Status writeTemporaryFile(const QString& path, const QString& text);

// Writes `text` in the same way and returns what the file now says; null if it can't be written or read.
[[nodiscard]] std::optional<QString> rewrittenTemporaryFile(const QString& path, const QString& text);
