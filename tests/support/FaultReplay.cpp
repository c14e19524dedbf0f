#include "tests/support/FaultReplay.h"

#include <random>

namespace {

using Kind = FaultDiskOperation::Kind;
using Random = std::mt19937;

constexpr qint64 sectorSize = 512;

int pick(Random& random, int count)
{
    return static_cast<int>(random() % static_cast<unsigned>(count));
}

void applyTo(FaultImage& image, const FaultDiskOperation& operation)
{
    if (operation.kind == Kind::Write)
        image.write(operation.offset, operation.bytes);
    else
        image.resize(operation.offset);
}

// Sectors that are old stay as they are in `image`.
void applyTorn(FaultImage& image, const FaultDiskOperation& operation, Random& random)
{
    if (operation.kind != Kind::Write)
        return;
    const auto end = operation.offset + operation.bytes.size();
    for (auto from = operation.offset; from < end;) {
        const auto to = std::min(end, (from / sectorSize + 1) * sectorSize);
        const auto fresh = operation.bytes.mid(from - operation.offset, to - from);
        const auto fate = pick(random, 3);
        if (fate != 0)
            image.write(from, fate == 1 ? fresh : QByteArray(fresh.size(), static_cast<char>(random())));
        from = to;
    }
}

void applySome(FaultImage& image, const std::vector<FaultDiskOperation>& operations, Random& random)
{
    for (const auto& operation : operations) {
        const auto fate = pick(random, 8);
        if (fate < 3)
            applyTo(image, operation);
        else if (fate < 5)
            applyTorn(image, operation, random);
    }
}

void applyFirst(FaultImage& image, const std::vector<FaultDiskOperation>& operations, Random& random)
{
    const auto count = pick(random, static_cast<int>(operations.size()) + 1);
    for (int index = 0; index < count; ++index)
        applyTo(image, operations[static_cast<std::size_t>(index)]);
    if (const auto next = static_cast<std::size_t>(count); next < operations.size())
        applyTorn(image, operations[next], random);
}

} // namespace

FaultReplay::FaultReplay(const FaultImages& images)
{
    for (const auto& [name, image] : images) {
        const auto number = static_cast<int>(files.size());
        names.emplace(name, number);
        syncedNames.emplace(name, number);
        files.push_back({image, image, {}});
    }
}

void FaultReplay::applyTo(Names& names, const FaultDiskOperation& operation)
{
    if (operation.kind == Kind::Create)
        names[operation.name] = operation.file;
    else
        names.erase(operation.name);
}

void FaultReplay::apply(const FaultDiskOperation& operation)
{
    if (operation.kind == Kind::Create)
        files.emplace_back();
    auto* file = operation.file < 0 ? nullptr : &files[static_cast<std::size_t>(operation.file)];
    switch (operation.kind) {
    case Kind::Write:
    case Kind::Resize:
        ::applyTo(file->written, operation);
        file->unsynced.push_back(operation);
        break;
    case Kind::Sync:
        for (const auto& change : file->unsynced)
            ::applyTo(file->synced, change);
        file->unsynced.clear();
        break;
    case Kind::LoseUnsynced:
        file->unsynced.clear();
        break;
    case Kind::Create:
    case Kind::Remove:
        if (!operation.name.isEmpty()) {
            applyTo(names, operation);
            unsyncedNames.push_back(operation);
        }
        break;
    case Kind::SyncNames:
        syncedNames = names;
        unsyncedNames.clear();
        break;
    }
}

bool FaultReplay::hasUnsynced() const
{
    return !unsyncedNames.empty() ||
           std::any_of(files.begin(), files.end(), [](const File& file) { return !file.unsynced.empty(); });
}

FaultImages FaultReplay::afterKill() const
{
    FaultImages images;
    for (const auto& [name, file] : names)
        images.emplace(name, files[static_cast<std::size_t>(file)].written);
    return images;
}

FaultImages FaultReplay::onlySynced() const
{
    FaultImages images;
    for (const auto& [name, file] : syncedNames)
        images.emplace(name, files[static_cast<std::size_t>(file)].synced);
    return images;
}

FaultImages FaultReplay::afterPowerLoss(quint32 seed) const
{
    Random random(seed);
    auto found = syncedNames;
    const auto changed = pick(random, static_cast<int>(unsyncedNames.size()) + 1);
    for (int index = 0; index < changed; ++index)
        applyTo(found, unsyncedNames[static_cast<std::size_t>(index)]);
    FaultImages images;
    for (const auto& [name, number] : found) {
        const auto& file = files[static_cast<std::size_t>(number)];
        auto& image = images.emplace(name, file.synced).first->second;
        if (seed % 4 == 0)
            applyFirst(image, file.unsynced, random);
        else
            applySome(image, file.unsynced, random);
    }
    return images;
}
