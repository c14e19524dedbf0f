#include "tests/support/FaultMemory.h"

#include "tests/support/FaultPlan.h"

#include <sqlite3.h>

namespace {

FaultPlan* memoryPlan = nullptr;
sqlite3_mem_methods usualMemory{};

bool isRefused()
{
    return memoryPlan != nullptr && memoryPlan->next(FaultPlan::Operation::Allocation) != Fault::None;
}

// SQLite takes its allocator before it is first used only.
void replaceAllocator()
{
    sqlite3_shutdown();
    sqlite3_config(SQLITE_CONFIG_GETMALLOC, &usualMemory);
    auto methods = usualMemory;
    methods.xMalloc = [](int size) { return isRefused() ? nullptr : usualMemory.xMalloc(size); };
    methods.xRealloc = [](void* block, int size) {
        return isRefused() ? nullptr : usualMemory.xRealloc(block, size);
    };
    sqlite3_config(SQLITE_CONFIG_MALLOC, &methods);
    sqlite3_initialize();
}

} // namespace

void setFaultMemory(FaultPlan* plan)
{
    if (usualMemory.xMalloc == nullptr)
        replaceAllocator();
    memoryPlan = plan;
}
