#pragma once

#include "platform/store/StoreFiles.h"
#include "tests/support/FaultDisk.h"
#include "tests/support/FaultPlan.h"

#include <memory>

// The file system of SQLite and of the store while the object lives: all files lie in memory, every change is
// recorded, and operations and SQLite's requests for memory fail as planned. One at a time; nothing of SQLite
// may be open when it is made or destroyed.
class FaultFileSystem : public StoreFiles
{
public:
    FaultFileSystem();
    ~FaultFileSystem() override;
    Q_DISABLE_COPY_MOVE(FaultFileSystem)

    // Puts in a disk on which `images` lie safely. No file must be open.
    void insert(const FaultImages& images) { disk = FaultDisk(images); }

    [[nodiscard]] Status prepare(const QString& path) override;
    [[nodiscard]] bool exists(const QString& path) const override { return disk.find(path).has_value(); }
    [[nodiscard]] qint64 size(const QString& path) const override;

    FaultDisk disk;
    FaultPlan plan;

private:
    class Registration;
    std::unique_ptr<Registration> registration;
};
