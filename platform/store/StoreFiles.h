#pragma once

#include "platform/foundation/Result.h"

// The few file operations that the store does without SQLite. Process-wide, as SQLite's default file system
// is, so that both can be replaced together.
class StoreFiles
{
public:
    virtual ~StoreFiles() = default;

    // Makes the directory of `path` and an empty file there, for their owner alone, unless they exist. Fails
    // when something other than a file is in the way.
    [[nodiscard]] virtual Status prepare(const QString& path) = 0;
    [[nodiscard]] virtual bool exists(const QString& path) const = 0;
    // In bytes; 0 if there is no such file.
    [[nodiscard]] virtual qint64 size(const QString& path) const = 0;

    // The ones of the system unless others were set.
    [[nodiscard]] static StoreFiles& current();
    // Null: the ones of the system. `files` must live until others are set.
    static void setCurrent(StoreFiles* files);

protected:
    StoreFiles() = default;
    Q_DISABLE_COPY_MOVE(StoreFiles)
};
