#include "tests/support/FaultFileSystem.h"

#include "tests/support/FaultFile.h"
#include "tests/support/FaultMemory.h"

#include <cstring>

namespace {

FaultFileSystem& systemOf(sqlite3_vfs* vfs)
{
    return *static_cast<FaultFileSystem*>(vfs->pAppData);
}

QString pathOf(const char* name)
{
    return QString::fromUtf8(name);
}

int openFile(sqlite3_vfs* vfs, const char* name, sqlite3_file* handle, int flags, int* outFlags)
{
    handle->pMethods = nullptr;
    auto& system = systemOf(vfs);
    if (system.plan.next(FaultPlan::Operation::Open) != Fault::None)
        return SQLITE_CANTOPEN;
    const auto path = name != nullptr ? pathOf(name) : QString();
    auto number = system.disk.find(path);
    const bool mayCreate = (flags & SQLITE_OPEN_CREATE) != 0;
    if (!number && !mayCreate)
        return SQLITE_CANTOPEN;
    if (!number)
        number = system.disk.create(path);
    // As SQLite's own file system for Unix does it, whether the file is new or not.
    constexpr int logs = SQLITE_OPEN_WAL | SQLITE_OPEN_MAIN_JOURNAL | SQLITE_OPEN_SUPER_JOURNAL;
    const bool syncsNames = mayCreate && (flags & logs) != 0;
    FaultFile::open(*handle, system, *number, syncsNames);
    if (outFlags != nullptr)
        *outFlags = flags;
    return SQLITE_OK;
}

int deleteFile(sqlite3_vfs* vfs, const char* name, int syncDirectory)
{
    auto& system = systemOf(vfs);
    if (system.plan.next(FaultPlan::Operation::Other) != Fault::None)
        return SQLITE_IOERR_DELETE;
    const auto path = pathOf(name);
    if (!system.disk.find(path))
        return SQLITE_IOERR_DELETE_NOENT;
    system.disk.remove(path);
    if (syncDirectory != 0)
        system.disk.syncNames();
    return SQLITE_OK;
}

// To SQLite an empty file doesn't exist, as in its own file system for Unix.
int askForFile(sqlite3_vfs* vfs, const char* name, int flags, int* answer)
{
    auto& system = systemOf(vfs);
    if (system.plan.next(FaultPlan::Operation::Other) != Fault::None)
        return SQLITE_IOERR_ACCESS;
    const auto path = pathOf(name);
    *answer = system.exists(path) && (flags != SQLITE_ACCESS_EXISTS || system.size(path) > 0) ? 1 : 0;
    return SQLITE_OK;
}

int copyFullPath(sqlite3_vfs* /*vfs*/, const char* name, int room, char* path)
{
    const auto length = std::strlen(name) + 1;
    if (length > static_cast<std::size_t>(room))
        return SQLITE_CANTOPEN;
    std::memcpy(path, name, length);
    return SQLITE_OK;
}

// Waiting for a lock costs no time.
int skipTime(sqlite3_vfs* /*vfs*/, int microseconds)
{
    return microseconds;
}

} // namespace

// Randomness and time are the usual file system's.
class FaultFileSystem::Registration
{
public:
    explicit Registration(FaultFileSystem& system)
        : usual(usualFileSystem(system))
        , vfs(*usual)
    {
        vfs.iVersion = 2;
        vfs.szOsFile = sizeof(FaultFile);
        vfs.pNext = nullptr;
        vfs.zName = "faults";
        vfs.pAppData = &system;
        vfs.xOpen = openFile;
        vfs.xDelete = deleteFile;
        vfs.xAccess = askForFile;
        vfs.xFullPathname = copyFullPath;
        vfs.xSleep = skipTime;
        sqlite3_vfs_register(&vfs, 1);
        StoreFiles::setCurrent(&system);
    }
    ~Registration()
    {
        StoreFiles::setCurrent(nullptr);
        setFaultMemory(nullptr);
        sqlite3_vfs_unregister(&vfs);
        sqlite3_vfs_register(usual, 1);
    }
    Q_DISABLE_COPY_MOVE(Registration)

private:
    // The memory comes first: SQLite lists its file systems anew when that changes.
    static sqlite3_vfs* usualFileSystem(FaultFileSystem& system)
    {
        setFaultMemory(&system.plan);
        return sqlite3_vfs_find(nullptr);
    }

    sqlite3_vfs* usual;
    sqlite3_vfs vfs;
};

FaultFileSystem::FaultFileSystem()
    : registration(std::make_unique<Registration>(*this))
{
}

FaultFileSystem::~FaultFileSystem() = default;

Status FaultFileSystem::prepare(const QString& path)
{
    if (exists(path))
        return success();
    if (plan.next(FaultPlan::Operation::Open) != Fault::None)
        return NSError{QStringLiteral("The store could not be made."), {}};
    disk.create(path);
    return success();
}

qint64 FaultFileSystem::size(const QString& path) const
{
    const auto file = disk.find(path);
    return file ? disk.image(*file).size() : 0;
}
