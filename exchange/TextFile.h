#pragma once

#include "platform/foundation/Result.h"

// The text that `bytes` hold: in the encoding that a byte order mark tells, which is no part of the text;
// without one in UTF-8 or, where they are not valid as that, in Latin-1. So every sequence of bytes is some
// text.
[[nodiscard]] QString decodedText(const QByteArray& bytes);

// The whole text of a file. Fails for what is not a plain file (a directory, a pipe), cannot be read, or has
// more than 512 MiB.
[[nodiscard]] Result<QString> textOfFile(const QString& path);
