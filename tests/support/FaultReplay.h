#pragma once

#include "tests/support/FaultDisk.h"

// A disk's changes taken up to some moment, and the states in which the disk may be found when the computer
// stops there.
class FaultReplay
{
public:
    // `images` are safely on the disk.
    explicit FaultReplay(const FaultImages& images);

    void apply(const FaultDiskOperation& operation);

    [[nodiscard]] bool hasUnsynced() const;
    // The process was killed: all that it wrote is there.
    [[nodiscard]] FaultImages afterKill() const;
    // The power went: all that was not synced is gone.
    [[nodiscard]] FaultImages onlySynced() const;
    // The power went: each write that was not synced is there (3 of 8), gone (3 of 8) or torn (2 of 8): each
    // of its sectors is new, old or garbage. With every fourth seed they are there up to one that is torn
    // instead. Names are made and removed in order, up to some moment.
    [[nodiscard]] FaultImages afterPowerLoss(quint32 seed) const;

private:
    struct File
    {
        FaultImage written;
        FaultImage synced;
        std::vector<FaultDiskOperation> unsynced;
    };
    using Names = std::map<QString, int>;

    static void applyTo(Names& names, const FaultDiskOperation& operation);

    std::vector<File> files;
    Names names;
    Names syncedNames;
    std::vector<FaultDiskOperation> unsyncedNames;
};
