#include "bench/BareDatabase.h"
#include "bench/BenchHome.h"
#include "bench/Measurement.h"
#include "bench/Measurements.h"
#include "bench/SampleCatalogue.h"
#include "browse/MainListTableViewController.h"
#include "platform/services/Device.h"

namespace {

// The movie list over the sample catalogue, loaded, with all movies in memory.
struct ListScreen
{
    explicit ListScreen(BenchHome& home)
    {
        home.useDataFolder(QStringLiteral("data"));
        screen.emplace();
        screen->viewDidLoad();
    }

    const std::unique_ptr<Device> device = makeLinuxDevice();
    AppDelegate delegate;
    std::optional<MainListTableViewController> screen;
};

const QStringList& sortNames()
{
    static const QStringList names{QStringLiteral("MovieName"), QStringLiteral("Genre"),
                                   QStringLiteral("Year"), QStringLiteral("Rating")};
    return names;
}

// Every key in both directions, as the sort menu does it.
void sortOurs(benchmark::State& state, BenchHome& home)
{
    ListScreen list(home);
    const auto sortAll = [&] {
        for (const auto& name : sortNames()) {
            list.screen->SortName = name;
            list.screen->SortMoviesTapped();
            list.screen->SortMoviesTapped();
        }
        return list.screen->MovieList.size();
    };
    measureWork(state, sortAll, 2 * sortNames().size());
}

std::vector<BareStatement> sortStatements(BareDatabase& database)
{
    std::vector<BareStatement> statements;
    for (const std::string key : {"", "genre", "yearReleased", "rating"}) {
        for (const std::string direction : {" DESC", ""}) {
            std::string sql = "SELECT id FROM Movies ORDER BY ";
            if (!key.empty())
                sql.append(key).append(direction).append(", ");
            sql.append("movieName").append(direction).append(", id").append(direction);
            statements.push_back(database.prepare(sql));
        }
    }
    return statements;
}

void sortBare(benchmark::State& state, BenchHome& home)
{
    BareDatabase database(storeFile(home.useDataFolder(QStringLiteral("data"))));
    const auto statements = sortStatements(database);
    const auto readIds = [&] {
        qint64 sum = 0;
        for (const auto& statement : statements) {
            while (database.step(statement))
                sum += sqlite3_column_int64(statement.get(), 0);
            sqlite3_reset(statement.get());
        }
        return sum;
    };
    // The list screen's database has been read before, too.
    readIds();
    measureWork(state, readIds, std::ssize(statements));
}

// What somebody types, letter by letter.
QStringList keystrokes()
{
    const auto typed = QStringLiteral("midnight");
    QStringList texts;
    for (qsizetype length = 1; length <= typed.size(); ++length)
        texts << typed.first(length);
    return texts;
}

void searchOurs(benchmark::State& state, BenchHome& home)
{
    ListScreen list(home);
    auto* searchBar = list.screen->searchController->searchBar();
    const auto texts = keystrokes();
    const auto type = [&] {
        std::size_t found = 0;
        for (const auto& text : texts) {
            searchBar->setText(text);
            found += list.screen->FilteredMovieList.size();
        }
        return found;
    };
    measureWork(state, type, texts.size());
}

std::vector<QString> movieNames(BenchHome& home)
{
    const ListScreen list(home);
    std::vector<QString> names;
    for (const auto& movie : list.screen->MovieList)
        names.push_back(movie->movieName().value_or(QString()));
    return names;
}

void searchBare(benchmark::State& state, BenchHome& home)
{
    const auto names = movieNames(home);
    const auto texts = keystrokes();
    const auto scan = [&] {
        qsizetype found = 0;
        for (const auto& text : texts)
            found += std::count_if(names.begin(), names.end(), [&](const QString& name) {
                return name.contains(text, Qt::CaseInsensitive);
            });
        return found;
    };
    measureWork(state, scan, texts.size());
}

} // namespace

void addListMeasurements(BenchHome& home)
{
    addMeasurement("sort/ours", [&home](benchmark::State& state) { sortOurs(state, home); });
    addMeasurement("sort/reference", [&home](benchmark::State& state) { sortBare(state, home); });
    addMeasurement("search/ours", [&home](benchmark::State& state) { searchOurs(state, home); });
    addMeasurement("search/reference", [&home](benchmark::State& state) { searchBare(state, home); });
}
