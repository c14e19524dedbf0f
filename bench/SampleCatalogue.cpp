#include "bench/SampleCatalogue.h"

#include "bench/BareDatabase.h"
#include "bench/BareMovies.h"
#include "bench/BenchError.h"
#include "bench/SampleMovies.h"
#include "model/MarrowvaleModel.h"
#include "platform/store/NSPersistentContainer.h"

namespace {

void makeEmptyStore(const QString& dataHome)
{
    NSPersistentContainer container(QStringLiteral("Marrowvale"), MarrowvaleModel::description());
    if (const auto made = container.loadPersistentStores(storeDirectory(dataHome)); !made)
        throw BenchError(made.error().debugText());
}

void insertCover(BareDatabase& database, const BareStatement& statement, qint64 record,
                 const QByteArray& cover)
{
    sqlite3_bind_int64(statement.get(), 1, record);
    sqlite3_bind_blob(statement.get(), 2, cover.constData(), static_cast<int>(cover.size()), SQLITE_STATIC);
    database.finish(statement);
}

} // namespace

QString storeDirectory(const QString& dataHome)
{
    return dataHome + QStringLiteral("/marrowvale");
}

QString storeFile(const QString& dataHome)
{
    return storeDirectory(dataHome) + QStringLiteral("/Marrowvale.sqlite");
}

void makeSampleCatalogue(const QString& dataHome, int movieCount)
{
    makeEmptyStore(dataHome);
    const auto covers = sampleCovers();
    BareDatabase database(storeFile(dataHome));
    // Should the making fail, the file is thrown away: nothing needs to be rolled back.
    database.run("PRAGMA journal_mode = OFF");
    database.run("PRAGMA synchronous = OFF");
    database.run("BEGIN");
    const auto movie = database.prepare(bareInsertMovie());
    const auto cover = database.prepare("INSERT INTO Movies_frontCover (record, frontCover) VALUES (?, ?)");
    for (int number = 0; number < movieCount; ++number) {
        const BareMovie sample(sampleMovie(number));
        sample.bindTo(movie);
        database.finish(movie);
        insertCover(database, cover, number + 1, covers[number % covers.size()]);
    }
    database.run("COMMIT");
}
