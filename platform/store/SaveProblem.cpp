#include "platform/store/SaveProblem.h"

#include "platform/store/StorePlace.h"

#include <sqlite3.h>

SaveProblem saveProblemOf(const NSError& error)
{
    constexpr int primaryCode = 0xff;
    if (isStoreReplaced(error))
        return SaveProblem::Replaced;
    switch (error.userInfo.value(QStringLiteral("SQLiteCode")).toInt() & primaryCode) {
    case SQLITE_FULL:
        return SaveProblem::DiskFull;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return SaveProblem::InUse;
    case SQLITE_READONLY:
        return SaveProblem::ReadOnly;
    default:
        return SaveProblem::Broken;
    }
}
