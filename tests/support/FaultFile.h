#pragma once

#include <QtGlobal>
#include <sqlite3.h>

class FaultFileSystem;

// An open file of a FaultFileSystem, as SQLite asks for it: bytes, locks and the shared memory of a log's
// index. Any number of connections of this process may have a file open.
class FaultFile : public sqlite3_file
{
public:
    // Makes of `handle`, which has room for it, an open file. `syncsNames`: the first sync brings the names
    // of the disk's files there too.
    static void open(sqlite3_file& handle, FaultFileSystem& system, int number, bool syncsNames);

    void close();
    [[nodiscard]] int read(void* target, int count, qint64 offset);
    [[nodiscard]] int write(const void* bytes, int count, qint64 offset);
    [[nodiscard]] int truncate(qint64 size);
    [[nodiscard]] int sync();
    [[nodiscard]] int size(qint64& answer);

    [[nodiscard]] int lock(int wanted);
    [[nodiscard]] int unlock(int wanted);
    [[nodiscard]] int checkReserved(int& answer);

    [[nodiscard]] int mapShared(int region, int size, bool extend, volatile void** place);
    [[nodiscard]] int lockShared(int first, int count, int flags);
    void unmapShared();

private:
    // The strongest lock that another handle of the file has.
    [[nodiscard]] int othersLock() const;

    FaultFileSystem* system;
    int number;
    bool syncsNames;
    int level;
    // A bit for each of the locks on the shared memory.
    unsigned sharedMask;
    unsigned exclusiveMask;
    bool isMapped;
};
