#pragma once

#include "tests/support/FaultImage.h"

#include <optional>
#include <vector>

// One change of a disk. Files are numbered in the order in which they were made; a name stands for a file
// until it is removed.
struct FaultDiskOperation
{
    enum class Kind {
        Write,
        Resize,
        Sync,
        // The sync failed: what it should have brought to the disk never gets there, although it reads back.
        LoseUnsynced,
        Create,
        Remove,
        SyncNames
    };

    Kind kind;
    int file = -1;
    // Where the bytes go, or the new size.
    qint64 offset = 0;
    QByteArray bytes;
    QString name;
};

// A disk in memory that keeps a record of every change since it was made.
class FaultDisk
{
public:
    FaultDisk() = default;
    // `images` are taken as safely on the disk.
    explicit FaultDisk(const FaultImages& images);

    [[nodiscard]] std::optional<int> find(const QString& name) const;
    [[nodiscard]] const FaultImage& image(int file) const { return files[static_cast<std::size_t>(file)]; }
    // All files as programs see them.
    [[nodiscard]] FaultImages images() const;
    [[nodiscard]] const std::vector<FaultDiskOperation>& operations() const { return record; }

    // Makes the file, without a name if `name` is empty, and returns its number.
    int create(const QString& name);
    void remove(const QString& name);
    void write(int file, qint64 offset, QByteArrayView bytes);
    void resize(int file, qint64 size);
    void sync(int file);
    void loseUnsynced(int file);
    void syncNames();

private:
    std::vector<FaultImage> files;
    std::map<QString, int> names;
    std::vector<FaultDiskOperation> record;
};
