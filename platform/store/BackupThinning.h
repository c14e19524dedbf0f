#pragma once

#include "platform/store/BackupName.h"

#include <vector>

class QTimeZone;

// Returns the backups that are no longer needed at `now`. These stay, newest first, in days of `zone`:
// - the newest twenty of today and yesterday;
// - of the days that have none of these, the last copy of each of the latest 12 that have any;
// - before these, of the weeks (Monday to Sunday) that have none, the last copy of each of the latest 10;
// - before these, of the months that have none, the last copy of each of the latest 9;
// - for 30 days and beside all these, each copy made before a migration or a restore;
// - each copy from the future: the clock was set back, and nothing can be said of its age.
// Days without copies don't count, so a long absence removes nothing.
[[nodiscard]] std::vector<BackupName> expiredBackups(std::vector<BackupName> backups, const QDateTime& now,
                                                     const QTimeZone& zone);
