#pragma once

#include "platform/store/NSManagedObjectModel.h"

namespace MarrowvaleModel {

// The way of the catalogue's file from nothing to the form that `description` asks for. A step that was
// released is never edited; a new form is a new step at the end.
[[nodiscard]] std::vector<NSMigration> migrations();

} // namespace MarrowvaleModel
