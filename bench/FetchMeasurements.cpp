#include "bench/BareMovies.h"
#include "bench/BenchError.h"
#include "bench/BenchHome.h"
#include "bench/Measurement.h"
#include "bench/Measurements.h"
#include "bench/SampleCatalogue.h"
#include "model/MarrowvaleModel.h"
#include "model/Movies.h"
#include "platform/store/NSPersistentContainer.h"

namespace {

NSFetchRequest moviesByName()
{
    auto request = Movies::fetchRequest();
    request.sortDescriptors = {{QStringLiteral("movieName"), true}};
    return request;
}

void fetchOurs(benchmark::State& state, const QString& dataHome)
{
    NSPersistentContainer container(QStringLiteral("Marrowvale"), MarrowvaleModel::description());
    if (const auto opened = container.loadPersistentStores(storeDirectory(dataHome)); !opened)
        throw BenchError(opened.error().debugText());
    measureWork(state, [&] { return container.viewContext().fetch<Movies>(moviesByName()); });
}

// Touches every value, so that SQLite decodes it.
qint64 readAll(BareDatabase& database, const BareStatement& statement)
{
    qint64 sum = 0;
    while (database.step(statement)) {
        int column = 0;
        sum += sqlite3_column_int64(statement.get(), column++);
        for (; column <= bareTextCount; ++column) {
            benchmark::DoNotOptimize(sqlite3_column_text(statement.get(), column));
            sum += sqlite3_column_bytes(statement.get(), column);
        }
        for (; column <= bareTextCount + bareNumberCount; ++column)
            sum += sqlite3_column_int64(statement.get(), column);
    }
    return sum;
}

void fetchBare(benchmark::State& state, const QString& dataHome)
{
    BareDatabase database(storeFile(dataHome));
    measureWork(state, [&] {
        const auto statement = database.prepare(std::string("SELECT id, ") + bareMovieColumns +
                                                " FROM Movies ORDER BY movieName, id");
        return readAll(database, statement);
    });
}

} // namespace

void addFetchMeasurements(BenchHome& home)
{
    const auto dataHome = home.useDataFolder(QStringLiteral("data"));
    addMeasurement("fetch/ours", [=](benchmark::State& state) { fetchOurs(state, dataHome); });
    addMeasurement("fetch/reference", [=](benchmark::State& state) { fetchBare(state, dataHome); });
}
