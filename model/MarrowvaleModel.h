#pragma once

#include "platform/store/NSManagedObjectModel.h"

namespace MarrowvaleModel {

// What the catalogue's store holds: `Movies`, `Genres`, `Providers`, `Ratings`, `Actors`. Lives as long as
// the process.
[[nodiscard]] const NSManagedObjectModel& description();

// What a new movie has for its date watched: 1 January 2001 at noon UTC, which is that day nearly everywhere.
[[nodiscard]] QDateTime defaultWatchDate();

} // namespace MarrowvaleModel
