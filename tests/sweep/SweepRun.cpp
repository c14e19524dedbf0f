#include "tests/sweep/SweepRun.h"

#include "model/MarrowvaleModel.h"
#include "platform/store/Database.h"
#include "platform/store/StoreFile.h"

#include <QFile>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

const QString storePath = sweptDirectory + QStringLiteral("/Marrowvale.sqlite");

Result<QByteArrayList> readStore()
{
    const auto opened = openStoreFile(storePath, MarrowvaleModel::description());
    if (!opened)
        return opened.error();
    // The disk is thrown away.
    opened.value()->setCheckpointsOnClose(false);
    return linesOf(*opened.value());
}

void runScript(Database& database, const QString& path)
{
    QFile script(path);
    ASSERT_TRUE(script.open(QFile::ReadOnly));
    auto statements = script.readAll().replace(";\n", QByteArray(1, '\0')).split('\0');
    statements.removeLast();
    for (const auto& statement : statements)
        ASSERT_TRUE(database.run(statement)) << statement.constData();
}

// A store as the first version of the program left it, and what is in it.
SweepStart oldestStore(FaultFileSystem& system, const SweepJourney::Stage& stage)
{
    system.insert({});
    SweptCatalogue catalogue;
    {
        const auto database = Database::open(storePath, Database::Access::ReadWrite).value();
        runScript(*database, QStringLiteral(MARROWVALE_SOURCE_DIR "/tests/data/catalogue-version-1.sql"));
        catalogue.others = linesOf(*database).value();
    }
    return {stage, system.disk.images(), catalogue};
}

} // namespace

void SweepHistory::follow(SweepJourney& journey, const std::function<void()>& handler)
{
    journey.onSaving = [this, handler](const QByteArrayList& lines) {
        states.push_back(lines);
        handler();
    };
    journey.onSaved = [this, handler](bool survivesPowerLoss) {
        lastAcknowledged = begun();
        if (survivesPowerLoss)
            lastPromised = begun();
        handler();
    };
}

std::optional<std::size_t> SweepHistory::find(const QByteArrayList& found, std::size_t from,
                                              std::size_t to) const
{
    for (auto index = from; index <= to; ++index) {
        if (states[index] == found)
            return index;
    }
    return std::nullopt;
}

std::vector<SweepStart> sweepStarts(FaultFileSystem& system)
{
    std::vector<SweepStart> starts;
    FaultImages images;
    SweptCatalogue catalogue;
    for (const auto& stage : SweepJourney::stages()) {
        if (stage.fromOldestFile) {
            starts.push_back(oldestStore(system, stage));
            continue;
        }
        starts.push_back({stage, images, catalogue});
        system.insert(images);
        SweepJourney journey(sweptDirectory);
        journey.catalogue = catalogue;
        (journey.*stage.run)();
        journey.close();
        images = system.disk.images();
        catalogue = journey.catalogue;
    }
    return starts;
}

Result<QByteArrayList> contentOf(FaultFileSystem& system, const FaultImages& images)
{
    system.plan.disarm();
    system.insert(images);
    return readStore();
}

SweepFigures::~SweepFigures()
{
    std::printf("%-28s %7d interruptions %7d states %4d refusals %4d losses %6d unsynced saves gone\n",
                name.c_str(), interruptions, states, refusals, losses, unsyncedLosses);
}
