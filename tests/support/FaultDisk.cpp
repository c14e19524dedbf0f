#include "tests/support/FaultDisk.h"

using Kind = FaultDiskOperation::Kind;

FaultDisk::FaultDisk(const FaultImages& images)
{
    for (const auto& [name, image] : images) {
        names.emplace(name, static_cast<int>(files.size()));
        files.push_back(image);
    }
}

std::optional<int> FaultDisk::find(const QString& name) const
{
    const auto found = names.find(name);
    return found == names.end() ? std::nullopt : std::optional(found->second);
}

FaultImages FaultDisk::images() const
{
    FaultImages all;
    for (const auto& [name, file] : names)
        all.emplace(name, image(file));
    return all;
}

int FaultDisk::create(const QString& name)
{
    const auto file = static_cast<int>(files.size());
    files.emplace_back();
    if (!name.isEmpty())
        names[name] = file;
    record.push_back({Kind::Create, file, 0, {}, name});
    return file;
}

void FaultDisk::remove(const QString& name)
{
    names.erase(name);
    record.push_back({Kind::Remove, -1, 0, {}, name});
}

void FaultDisk::write(int file, qint64 offset, QByteArrayView bytes)
{
    files[static_cast<std::size_t>(file)].write(offset, bytes);
    record.push_back({Kind::Write, file, offset, bytes.toByteArray(), {}});
}

void FaultDisk::resize(int file, qint64 size)
{
    files[static_cast<std::size_t>(file)].resize(size);
    record.push_back({Kind::Resize, file, size, {}, {}});
}

void FaultDisk::sync(int file)
{
    record.push_back({Kind::Sync, file, 0, {}, {}});
}

void FaultDisk::loseUnsynced(int file)
{
    record.push_back({Kind::LoseUnsynced, file, 0, {}, {}});
}

void FaultDisk::syncNames()
{
    record.push_back({Kind::SyncNames, -1, 0, {}, {}});
}
