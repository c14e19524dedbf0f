#include "tests/support/FaultFile.h"

#include "tests/support/FaultFileSystem.h"

#include <array>
#include <cstring>

namespace {

using Operation = FaultPlan::Operation;

// What the handles of one file share.
struct SharedFile
{
    std::vector<FaultFile*> handles;
    std::vector<std::unique_ptr<std::array<char, 32768>>> regions;
    int users = 0;
};

std::map<int, SharedFile> openFiles;

FaultFile& fileOf(sqlite3_file* handle)
{
    return *static_cast<FaultFile*>(handle);
}

int controlFile(sqlite3_file* /*handle*/, int /*operation*/, void* /*argument*/)
{
    return SQLITE_NOTFOUND;
}

constexpr int unixSectorSize = 4096;

// SQLite's own file system for Unix says the same of a disk.
const sqlite3_io_methods methods = {
    2,
    [](sqlite3_file* handle) {
        fileOf(handle).close();
        return SQLITE_OK;
    },
    [](sqlite3_file* handle, void* target, int count, sqlite3_int64 offset) {
        return fileOf(handle).read(target, count, offset);
    },
    [](sqlite3_file* handle, const void* bytes, int count, sqlite3_int64 offset) {
        return fileOf(handle).write(bytes, count, offset);
    },
    [](sqlite3_file* handle, sqlite3_int64 size) { return fileOf(handle).truncate(size); },
    [](sqlite3_file* handle, int /*flags*/) { return fileOf(handle).sync(); },
    [](sqlite3_file* handle, sqlite3_int64* answer) {
        qint64 size = 0;
        const int code = fileOf(handle).size(size);
        *answer = size;
        return code;
    },
    [](sqlite3_file* handle, int level) { return fileOf(handle).lock(level); },
    [](sqlite3_file* handle, int level) { return fileOf(handle).unlock(level); },
    [](sqlite3_file* handle, int* answer) { return fileOf(handle).checkReserved(*answer); },
    controlFile,
    [](sqlite3_file* /*handle*/) { return unixSectorSize; },
    [](sqlite3_file* /*handle*/) { return SQLITE_IOCAP_POWERSAFE_OVERWRITE; },
    [](sqlite3_file* handle, int region, int size, int extend, void volatile** place) {
        return fileOf(handle).mapShared(region, size, extend != 0, place);
    },
    [](sqlite3_file* handle, int first, int count, int flags) {
        return fileOf(handle).lockShared(first, count, flags);
    },
    [](sqlite3_file* /*handle*/) {},
    [](sqlite3_file* handle, int /*deletes*/) {
        fileOf(handle).unmapShared();
        return SQLITE_OK;
    },
    nullptr,
    nullptr};

} // namespace

void FaultFile::open(sqlite3_file& handle, FaultFileSystem& system, int number, bool syncsNames)
{
    auto& file = fileOf(&handle);
    file = {};
    file.pMethods = &methods;
    file.system = &system;
    file.number = number;
    file.syncsNames = syncsNames;
    openFiles[number].handles.push_back(&file);
}

void FaultFile::close()
{
    unmapShared();
    auto& handles = openFiles[number].handles;
    handles.erase(std::find(handles.begin(), handles.end(), this));
    if (handles.empty())
        openFiles.erase(number);
}

int FaultFile::read(void* target, int count, qint64 offset)
{
    if (system->plan.next(Operation::Read) != Fault::None)
        return SQLITE_IOERR_READ;
    auto* bytes = static_cast<char*>(target);
    const auto found = system->disk.image(number).read(offset, bytes, count);
    std::memset(bytes + found, 0, static_cast<std::size_t>(count - found));
    return found < count ? SQLITE_IOERR_SHORT_READ : SQLITE_OK;
}

int FaultFile::write(const void* bytes, int count, qint64 offset)
{
    const QByteArrayView content(static_cast<const char*>(bytes), count);
    switch (system->plan.next(Operation::Write)) {
    case Fault::None:
        system->disk.write(number, offset, content);
        return SQLITE_OK;
    case Fault::ShortWrite:
        system->disk.write(number, offset, content.first(count / 2));
        return SQLITE_FULL;
    case Fault::DiskFull:
    case Fault::DiskFullForGood:
        return SQLITE_FULL;
    default:
        return SQLITE_IOERR_WRITE;
    }
}

int FaultFile::truncate(qint64 size)
{
    if (system->plan.next(Operation::Other) != Fault::None)
        return SQLITE_IOERR_TRUNCATE;
    system->disk.resize(number, size);
    return SQLITE_OK;
}

int FaultFile::sync()
{
    if (system->plan.next(Operation::Sync) != Fault::None) {
        system->disk.loseUnsynced(number);
        return SQLITE_IOERR_FSYNC;
    }
    system->disk.sync(number);
    if (std::exchange(syncsNames, false))
        system->disk.syncNames();
    return SQLITE_OK;
}

int FaultFile::size(qint64& answer)
{
    if (system->plan.next(Operation::Other) != Fault::None)
        return SQLITE_IOERR_FSTAT;
    answer = system->disk.image(number).size();
    return SQLITE_OK;
}

int FaultFile::othersLock() const
{
    int strongest = SQLITE_LOCK_NONE;
    for (const auto* other : openFiles.at(number).handles) {
        if (other != this)
            strongest = std::max(strongest, other->level);
    }
    return strongest;
}

int FaultFile::lock(int wanted)
{
    if (wanted <= level)
        return SQLITE_OK;
    if (system->plan.next(Operation::Other) != Fault::None)
        return SQLITE_IOERR_LOCK;
    const int others = othersLock();
    if (others >= (wanted == SQLITE_LOCK_SHARED ? SQLITE_LOCK_PENDING : SQLITE_LOCK_RESERVED))
        return SQLITE_BUSY;
    if (wanted == SQLITE_LOCK_EXCLUSIVE && others > SQLITE_LOCK_NONE) {
        level = SQLITE_LOCK_PENDING;
        return SQLITE_BUSY;
    }
    level = wanted;
    return SQLITE_OK;
}

// Failing here is left out: a process that can't give up a lock can't go on.
int FaultFile::unlock(int wanted)
{
    level = std::min(level, wanted);
    return SQLITE_OK;
}

int FaultFile::checkReserved(int& answer)
{
    if (system->plan.next(Operation::Other) != Fault::None)
        return SQLITE_IOERR_CHECKRESERVEDLOCK;
    answer = std::max(level, othersLock()) >= SQLITE_LOCK_RESERVED ? 1 : 0;
    return SQLITE_OK;
}

int FaultFile::mapShared(int region, int size, bool extend, volatile void** place)
{
    auto& shared = openFiles[number];
    *place = nullptr;
    if (!std::exchange(isMapped, true))
        ++shared.users;
    while (extend && shared.regions.size() <= static_cast<std::size_t>(region)) {
        if (system->plan.next(Operation::Write) != Fault::None)
            return SQLITE_IOERR_SHMSIZE;
        shared.regions.push_back(std::make_unique<std::array<char, 32768>>());
    }
    Q_ASSERT(size == 32768);
    if (static_cast<std::size_t>(region) < shared.regions.size())
        *place = shared.regions[static_cast<std::size_t>(region)]->data();
    return SQLITE_OK;
}

int FaultFile::lockShared(int first, int count, int flags)
{
    const unsigned mask = ((1U << static_cast<unsigned>(count)) - 1) << static_cast<unsigned>(first);
    if ((flags & SQLITE_SHM_UNLOCK) != 0) {
        sharedMask &= ~mask;
        exclusiveMask &= ~mask;
        return SQLITE_OK;
    }
    if (system->plan.next(Operation::Other) != Fault::None)
        return SQLITE_IOERR_SHMLOCK;
    const bool isExclusive = (flags & SQLITE_SHM_EXCLUSIVE) != 0;
    for (const auto* other : openFiles.at(number).handles) {
        if (other != this && ((other->exclusiveMask | (isExclusive ? other->sharedMask : 0U)) & mask) != 0)
            return SQLITE_BUSY;
    }
    (isExclusive ? exclusiveMask : sharedMask) |= mask;
    return SQLITE_OK;
}

void FaultFile::unmapShared()
{
    if (!std::exchange(isMapped, false))
        return;
    sharedMask = 0;
    exclusiveMask = 0;
    auto& shared = openFiles[number];
    if (--shared.users == 0)
        shared.regions.clear();
}
