#pragma once

#include "platform/foundation/Result.h"

class Database;

// Every time the log of a store file was moved into it, the file gets a new mark, which is repeated in a
// small file beside it (<path>-generation). A log that has content then belongs to the file with that mark: a
// copy put in the place of the file has another one, and the two must not be mixed. While the log is being
// moved there is no file beside it, and nothing can be said. These functions may be called on any thread.

// Moves the log of the store at `path` into it, through a connection of its own, and empties the log. Then
// the file alone is the whole store. Fails at once when another connection writes or reads.
[[nodiscard]] Status moveLogIntoFile(const QString& path);

// False only where it is certain that the file at `path` is another one than the log beside it was written
// for.
[[nodiscard]] bool logBelongsToFile(const QString& path);

// Renames the log at `path` to <path>-wal-<date and time>, says so on the console, and removes the log's
// index.
[[nodiscard]] Status putLogAside(const QString& path);

// Whether there is a log with content beside `path`.
[[nodiscard]] bool hasLog(const QString& path);

// Removes the mark in the small file, so that nothing can be said until the log is moved next. The caller
// must hold the store's write lock.
[[nodiscard]] Status removeMarkBeside(const QString& path);

// Removes the mark from `copy`, which then counts as another store than the one it was copied from.
[[nodiscard]] Status removeMarkWithin(Database& copy);
