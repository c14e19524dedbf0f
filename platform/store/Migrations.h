#pragma once

#include "platform/foundation/Result.h"
#include "platform/store/NSManagedObjectModel.h"

class Database;

// Takes the database through the model's migrations that it has not seen, each in a transaction of its own
// together with the new version number. The first that fails leaves the database at the version before it,
// and its name in the error's userInfo. Switches foreign keys off, so that a step can replace a table that
// others refer to: the caller must switch them on.
[[nodiscard]] Status migrate(Database& database, const NSManagedObjectModel& model);
