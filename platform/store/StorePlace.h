#pragma once

#include "platform/foundation/Result.h"

#include <sys/types.h>

class Database;

// The file at the path of an open store, as far as one can tell without reading it. Copying another file over
// it leaves the same file in place with other content.
class StorePlace
{
public:
    explicit StorePlace(const QString& path);

    // Fails when the path leads to another file than the one that `open` holds, to none, or to the content of
    // another copy. Costs two questions to the file system unless the file was written since the last call.
    [[nodiscard]] Status check(const Database& open);

private:
    struct State
    {
        qint64 size = 0;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;
        bool operator==(const State&) const = default;
    };

    [[nodiscard]] State look() const;

    QByteArray path;
    State known;
};

// Whether a save failed because the store's file was replaced or removed.
[[nodiscard]] bool isStoreReplaced(const NSError& error);
