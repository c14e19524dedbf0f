#include "tests/walk/ModelCatalogue.h"

#include <QStandardPaths>
#include <sqlite3.h>

namespace {

class StoreReader
{
public:
    StoreReader()
    {
        const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
        const QByteArray path = (data + "/marrowvale/Marrowvale.sqlite").toUtf8();
        sqlite3_open_v2(path.constData(), &store, SQLITE_OPEN_READONLY, nullptr);
    }
    ~StoreReader() { sqlite3_close(store); }
    StoreReader(const StoreReader&) = delete;
    StoreReader& operator=(const StoreReader&) = delete;

    template <typename Visit>
    void forEach(const char* sql, const Visit& visit)
    {
        sqlite3_prepare_v2(store, sql, -1, &row, nullptr);
        while (sqlite3_step(row) == SQLITE_ROW)
            visit();
        sqlite3_finalize(row);
    }

    [[nodiscard]] std::optional<QString> text(int column) const
    {
        if (sqlite3_column_type(row, column) == SQLITE_NULL)
            return std::nullopt;
        return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(row, column)));
    }
    [[nodiscard]] qint64 number(int column) const { return sqlite3_column_int64(row, column); }
    [[nodiscard]] bool isNull(int column) const { return sqlite3_column_type(row, column) == SQLITE_NULL; }

private:
    sqlite3* store = nullptr;
    sqlite3_stmt* row = nullptr;
};

FilmPointer filmOf(const StoreReader& row)
{
    auto film = std::make_shared<ModelFilm>();
    film->id = row.number(0);
    std::optional<QString>* const texts[] = {&film->name,      &film->genre,  &film->rating,
                                             &film->provider,  &film->actors, &film->directors,
                                             &film->producers, &film->notes};
    int column = 0;
    for (auto* text : texts)
        *text = row.text(++column);
    film->year = static_cast<int>(row.number(9));
    film->runTime = static_cast<int>(row.number(10));
    if (!row.isNull(11))
        film->watched = QDateTime::fromMSecsSinceEpoch(row.number(11));
    film->watchedParts = QDate(static_cast<int>(row.number(12)), static_cast<int>(row.number(13)),
                               static_cast<int>(row.number(14)));
    film->hasCover = row.number(15) > 0;
    return film;
}

constexpr auto selectFilms =
    "SELECT id, movieName, genre, rating, provider, actors, directors, producers, notes, yearReleased, "
    "runTime, "
    "dateWatched, wYear, wMonth, wDay, EXISTS (SELECT 1 FROM Movies_frontCover WHERE record = id) "
    "FROM Movies ORDER BY id";
constexpr const char* selectValues[] = {"SELECT id, genre FROM Genres ORDER BY id",
                                        "SELECT id, name FROM Providers ORDER BY id",
                                        "SELECT id, rating FROM Ratings ORDER BY id"};

QString orNone(const std::optional<QString>& text)
{
    return text ? '"' + *text + '"' : QString("none");
}

template <typename Pointers, typename Describe>
void compare(const QString& what, const Pointers& expected, const Pointers& stored, const Describe& describe,
             QStringList& found)
{
    for (std::size_t index = 0; index < std::max(expected.size(), stored.size()); ++index) {
        const QString wanted = index < expected.size() ? describe(*expected[index]) : QString("nothing");
        const QString there = index < stored.size() ? describe(*stored[index]) : QString("nothing");
        const bool isOther =
            wanted == there && expected[index]->id != 0 && expected[index]->id != stored[index]->id;
        if (wanted != there || isOther)
            found.append(QString("%1 %2 is %3 (record %4), expected %5 (record %6)")
                             .arg(what)
                             .arg(index)
                             .arg(there)
                             .arg(index < stored.size() ? stored[index]->id : 0)
                             .arg(wanted)
                             .arg(index < expected.size() ? expected[index]->id : 0));
        else
            expected[index]->id = stored[index]->id;
        if (found.size() > 2)
            return;
    }
}

} // namespace

QString ModelFilm::description() const
{
    QStringList parts;
    for (const auto* text : {&name, &genre, &rating, &provider, &actors, &directors, &producers, &notes})
        parts.append(orNone(*text));
    return parts.join(", ") +
           QString(", %1, %2 min, %3, parts %4%5")
               .arg(year)
               .arg(runTime)
               .arg(watched ? watched->toLocalTime().date().toString(Qt::ISODate) : "never")
               .arg(watchedParts.isNull() ? "0" : watchedParts.toString(Qt::ISODate),
                    hasCover ? ", cover" : "");
}

FilmPointer ModelCatalogue::find(const QString& name, int year) const
{
    const auto found = std::find_if(films.begin(), films.end(), [&](const auto& film) {
        return film->name == name && film->year == year;
    });
    return found == films.end() ? nullptr : *found;
}

ModelCatalogue storedCatalogue()
{
    ModelCatalogue catalogue;
    StoreReader store;
    store.forEach(selectFilms, [&] { catalogue.films.push_back(filmOf(store)); });
    for (std::size_t list = 0; list < catalogue.values.size(); ++list)
        store.forEach(selectValues[list], [&] {
            catalogue.values[list].push_back(
                std::make_shared<ModelValue>(ModelValue{store.number(0), store.text(1).value_or("")}));
        });
    return catalogue;
}

QStringList differences(ModelCatalogue& expected, const ModelCatalogue& stored)
{
    QStringList found;
    compare(
        "Movie", expected.films, stored.films, [](const auto& film) { return film.description(); }, found);
    for (std::size_t list = 0; list < stored.values.size(); ++list)
        compare(
            QString("Value of list %1").arg(list), expected.values[list], stored.values[list],
            [](const auto& value) { return orNone(value.text); }, found);
    return found;
}
