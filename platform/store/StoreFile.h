#pragma once

#include "platform/foundation/Result.h"
#include "platform/store/NSManagedObjectModel.h"

#include <functional>
#include <memory>

class Database;

// Opens the store file at `path` (absolute), or makes it and its directory, and brings it to the model's
// version. A file that is refused is not touched. The error's userInfo holds the path and SQLite's code,
// where it has one. Calls `beforeMigration`, if given, before an older file is written to.
[[nodiscard]] Result<std::unique_ptr<Database>>
openStoreFile(const QString& path, const NSManagedObjectModel& model,
              const std::function<void()>& beforeMigration = {});
