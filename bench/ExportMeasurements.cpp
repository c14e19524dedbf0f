#include "bench/BenchHome.h"
#include "bench/EventLoop.h"
#include "bench/Measurement.h"
#include "bench/Measurements.h"
#include "exchange/ExportViewController.h"
#include "model/AppDelegate.h"
#include "platform/services/Device.h"
#include "platform/toolkit/UIImage.h"

#include <thread>

namespace {

constexpr double exportQuality = 0.6;

void exportOurs(benchmark::State& state, BenchHome& home)
{
    home.useDataFolder(QStringLiteral("covers"));
    const auto device = makeLinuxDevice();
    const AppDelegate delegate;
    ExportViewController screen;
    screen.viewDidLoad();
    measureWork(state, [&] {
        screen.CreateUpdateFile();
        runUntil([&] { return screen.SaveButton->isEnabled(); });
        return screen.DataString->size();
    });
}

std::vector<QByteArray> storedCovers(BenchHome& home)
{
    home.useDataFolder(QStringLiteral("covers"));
    AppDelegate delegate;
    std::vector<QByteArray> covers;
    const auto movies = delegate.persistentContainer().viewContext().fetch<Movies>(Movies::fetchRequest());
    for (const auto& movie : movies.value())
        covers.push_back(movie->frontCover().value_or(QByteArray()));
    return covers;
}

// Every cover decoded and encoded, shared out among all cores.
void exportBare(benchmark::State& state, BenchHome& home)
{
    const auto covers = storedCovers(home);
    measureWork(state, [&] {
        std::atomic<std::size_t> next = 0;
        std::atomic<qsizetype> size = 0;
        const auto convert = [&] {
            for (std::size_t index = next++; index < covers.size(); index = next++)
                size += UIImageJPEGRepresentation(imageWithData(covers[index]), exportQuality).size();
        };
        std::vector<std::jthread> threads;
        for (unsigned core = 0; core < std::max(1U, std::thread::hardware_concurrency()); ++core)
            threads.emplace_back(convert);
        threads.clear();
        return size.load();
    });
}

} // namespace

void addExportMeasurements(BenchHome& home)
{
    addMeasurement("export/ours", [&home](benchmark::State& state) { exportOurs(state, home); });
    addMeasurement("export/reference", [&home](benchmark::State& state) { exportBare(state, home); });
}
