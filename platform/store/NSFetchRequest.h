#pragma once

#include "platform/store/NSPredicate.h"
#include "platform/store/NSSortDescriptor.h"

#include <optional>

// Which records of an entity to fetch, and in which order. Without sort descriptors they come as they were
// inserted; records that the descriptors leave equal keep that order, or its reverse when the first
// descriptor descends.
struct NSFetchRequest
{
    NSFetchRequest() = default;
    explicit NSFetchRequest(QString entity)
        : entityName(std::move(entity))
    {
    }

    QString entityName;
    std::optional<NSPredicate> predicate;
    std::vector<NSSortDescriptor> sortDescriptors;
    // Part of the interface only: fetched objects always have their values, but for binary ones.
    bool returnsObjectsAsFaults = true;

    void setReturnsObjectsAsFaults(bool faults) { returnsObjectsAsFaults = faults; }
};
