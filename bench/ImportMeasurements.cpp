#include "bench/BareMovies.h"
#include "bench/BenchError.h"
#include "bench/BenchHome.h"
#include "bench/Measurement.h"
#include "bench/Measurements.h"
#include "bench/SampleCatalogue.h"
#include "bench/SampleMovies.h"
#include "exchange/ExchangeWriter.h"
#include "exchange/ImportViewController.h"
#include "model/MarrowvaleModel.h"

#include <QDir>

namespace {

// An exchange file, and the same lines as SQLite takes them.
struct ImportedLines
{
    QString document;
    std::vector<BareMovie> records;
    // The titles and years of the records, to look for them. A line without a title has no year either.
    std::vector<std::pair<std::string, std::optional<qint64>>> keys;
};

void addRecord(ImportedLines& lines, const MovieFields& movie)
{
    lines.records.emplace_back(movie);
    const auto year = movie.movieName.isEmpty() ? std::nullopt : std::optional<qint64>(movie.yearReleased);
    lines.keys.emplace_back(movie.movieName.toStdString(), year);
}

QString exchangeText(const MovieFields& movie)
{
    const auto text = exchangeRecord({AttributeValue(movie.actors),
                                      {},
                                      movie.directors,
                                      movie.genre,
                                      movie.movieName,
                                      movie.provider,
                                      movie.producers,
                                      movie.rating,
                                      movie.runTime,
                                      movie.yearReleased,
                                      movie.notes,
                                      {}});
    if (!text)
        throw BenchError(text.error().debugText());
    return text.value();
}

// Each line makes a record: the header, each movie, and the empty line after it.
ImportedLines linesToImport(int lineCount)
{
    ImportedLines lines;
    lines.document = exchangeOpening();
    MovieFields withoutFields;
    withoutFields.dateWatched = MarrowvaleModel::defaultWatchDate();
    auto header = withoutFields;
    header.actors = exchangeHeader.toString();
    addRecord(lines, header);
    for (int number = 0; number < lineCount / 2; ++number) {
        auto movie = sampleMovie(number);
        // No two of them the same.
        movie.movieName += QStringLiteral(" %1").arg(number);
        movie.dateWatched = MarrowvaleModel::defaultWatchDate();
        lines.document += exchangeText(movie);
        addRecord(lines, movie);
        addRecord(lines, withoutFields);
    }
    return lines;
}

// A new empty store, gone with the object.
class EmptyStore
{
public:
    explicit EmptyStore(BenchHome& home)
        : dataHome(home.useDataFolder(QStringLiteral("import")))
    {
        makeSampleCatalogue(dataHome, 0);
    }
    ~EmptyStore() { QDir(dataHome).removeRecursively(); }
    EmptyStore(const EmptyStore&) = delete;
    EmptyStore& operator=(const EmptyStore&) = delete;

    [[nodiscard]] QString file() const { return storeFile(dataHome); }

private:
    QString dataHome;
};

void importOurs(benchmark::State& state, BenchHome& home, const ImportedLines& lines)
{
    const EmptyStore store(home);
    AppDelegate delegate;
    auto& context = delegate.persistentContainer().viewContext();
    ImportViewController screen;
    screen.document = lines.document;
    measureWork(state, [&] {
        screen.ImportTextFile();
        return screen.resultCount;
    });
    const auto imported = context.count(Movies::fetchRequest());
    if (!imported || imported.value() < std::ssize(lines.records))
        throw BenchError(QStringLiteral("The import left movies out"));
}

void importBare(benchmark::State& state, BenchHome& home, const ImportedLines& lines)
{
    const EmptyStore store(home);
    BareDatabase database(store.file());
    database.run("PRAGMA journal_mode = WAL");
    database.run("PRAGMA synchronous = NORMAL");
    const auto select = database.prepare("SELECT id FROM Movies WHERE movieName = ? AND yearReleased = ?");
    const auto insert = database.prepare(bareInsertMovie());
    const auto importLine = [&](const BareMovie& record, const auto& key) {
        bindBare(select, 1, key.first);
        if (key.second)
            sqlite3_bind_int64(select.get(), 2, *key.second);
        else
            sqlite3_bind_null(select.get(), 2);
        database.finish(select);
        record.bindTo(insert);
        database.finish(insert);
    };
    measureWork(state, [&] {
        for (std::size_t index = 0; index < lines.records.size(); ++index)
            importLine(lines.records[index], lines.keys[index]);
        database.run("PRAGMA wal_checkpoint(FULL)");
        return lines.records.size();
    });
}

} // namespace

void addImportMeasurements(BenchHome& home, int lineCount)
{
    const auto lines = std::make_shared<const ImportedLines>(linesToImport(lineCount));
    addMeasurement("import/ours", [=, &home](benchmark::State& state) { importOurs(state, home, *lines); });
    addMeasurement("import/reference",
                   [=, &home](benchmark::State& state) { importBare(state, home, *lines); });
}
