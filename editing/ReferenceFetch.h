#pragma once

#include "model/ReferenceRecords.h"

class NSManagedObjectContext;

using ReferenceRecords = std::vector<std::shared_ptr<ReferenceRecord>>;

// What a request for the entity of a reference list finds. A failed fetch is told on the console and finds
// nothing.
[[nodiscard]] ReferenceRecords fetchedReferences(NSManagedObjectContext& context, NSFetchRequest request);
