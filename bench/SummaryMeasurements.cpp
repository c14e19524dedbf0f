#include "bench/BareDatabase.h"
#include "bench/BenchHome.h"
#include "bench/Measurement.h"
#include "bench/Measurements.h"
#include "bench/SampleCatalogue.h"
#include "platform/services/Device.h"
#include "summaries/GroupScreens.h"

namespace {

// The genres of the sample catalogue, loaded.
struct GenreScreen
{
    explicit GenreScreen(BenchHome& home)
    {
        home.useDataFolder(QStringLiteral("data"));
        // Such a system has no symbols, and the screen stands without tabs.
        device->systemVersion = 12;
        screen.emplace();
        screen->viewDidLoad();
    }

    const std::unique_ptr<Device> device = makeLinuxDevice();
    AppDelegate delegate;
    std::optional<GenreGroupTableViewController> screen;
};

void drawOurs(benchmark::State& state, BenchHome& home)
{
    GenreScreen genres(home);
    const int rowCount = genres.screen->tableView()->rowCount();
    const auto drawAll = [&] {
        QVariant last;
        for (int row = 0; row < rowCount; ++row)
            last = genres.screen->cellForRowAt({row});
        return last;
    };
    drawAll();
    measureWork(state, drawAll, rowCount);
}

std::vector<std::string> genresOf(BenchHome& home)
{
    const GenreScreen genres(home);
    std::vector<std::string> texts;
    for (const QString& genre : genres.screen->GenreList)
        texts.push_back(genre.toStdString());
    return texts;
}

void drawBare(benchmark::State& state, BenchHome& home)
{
    const auto genres = genresOf(home);
    BareDatabase database(storeFile(home.useDataFolder(QStringLiteral("data"))));
    const auto count = database.prepare("SELECT count(*) FROM Movies WHERE genre = ?");
    const auto countAll = [&] {
        qint64 sum = 0;
        for (const auto& genre : genres) {
            bindBare(count, 1, genre);
            while (database.step(count))
                sum += sqlite3_column_int64(count.get(), 0);
            sqlite3_reset(count.get());
        }
        return sum;
    };
    countAll();
    measureWork(state, countAll, std::ssize(genres));
}

} // namespace

void addSummaryMeasurements(BenchHome& home)
{
    addMeasurement("summary/ours", [&home](benchmark::State& state) { drawOurs(state, home); });
    addMeasurement("summary/reference", [&home](benchmark::State& state) { drawBare(state, home); });
}
