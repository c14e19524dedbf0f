#include "tests/sweep/SweptCatalogue.h"

#include "model/Movies.h"
#include "model/ReferenceRecords.h"
#include "platform/store/Database.h"

namespace {

constexpr auto filmsSql = R"sql(
    SELECT movieName, genre, notes, ifnull(yearReleased, 0), frontCover
    FROM Movies LEFT JOIN Movies_frontCover ON record = Movies.id)sql";

QByteArray lineOf(std::initializer_list<std::optional<QByteArray>> fields)
{
    QByteArray line;
    for (const auto& field : fields)
        line += field.value_or("~") + '|';
    return line;
}

std::optional<QByteArray> bytesOf(const std::optional<QString>& text)
{
    return text ? std::optional(text->toUtf8()) : std::nullopt;
}

QByteArrayList sorted(QByteArrayList lines)
{
    std::sort(lines.begin(), lines.end());
    return lines;
}

std::optional<QByteArray> column(const Query& row, int index)
{
    return row.isNull(index) ? std::nullopt : std::optional(row.blob(index).toByteArray());
}

Status checkIntegrity(Database& database)
{
    for (const auto* check : {"SELECT COUNT(*) FROM pragma_integrity_check WHERE integrity_check <> 'ok'",
                              "SELECT COUNT(*) FROM pragma_foreign_key_check"}) {
        const auto faults = database.number(check);
        if (!faults)
            return faults.error();
        if (faults.value() != 0)
            return NSError{QString::fromLatin1(check), {}};
    }
    return success();
}

} // namespace

QByteArrayList SweptCatalogue::lines() const
{
    auto lines = others;
    for (const auto& [title, film] : films)
        lines << lineOf({title.toUtf8(), bytesOf(film.genre), bytesOf(film.notes),
                         QByteArray::number(film.year), film.cover});
    for (const auto& genre : genres)
        lines << lineOf({genre.toUtf8()});
    return sorted(lines);
}

Result<QByteArrayList> linesOf(Database& database)
{
    if (const auto checked = checkIntegrity(database); !checked)
        return checked.error();
    QByteArrayList lines;
    auto films = database.query(filmsSql);
    auto read = films.forEachRow([&] {
        lines << lineOf({column(films, 0), column(films, 1), column(films, 2),
                         QByteArray::number(films.number(3)), column(films, 4)});
    });
    auto genres = database.query("SELECT genre FROM Genres");
    if (read)
        read = genres.forEachRow([&] { lines << lineOf({column(genres, 0)}); });
    if (!read)
        return read.error();
    return sorted(lines);
}

Result<QByteArrayList> linesOf(NSManagedObjectContext& context)
{
    const auto movies = context.fetch<Movies>(Movies::fetchRequest());
    const auto genres = context.fetch<Genres>(Genres::fetchRequest());
    if (!movies || !genres)
        return movies ? genres.error() : movies.error();
    QByteArrayList lines;
    for (const auto& movie : movies.value())
        lines << lineOf({bytesOf(movie->movieName()), bytesOf(movie->genre()), bytesOf(movie->notes()),
                         QByteArray::number(movie->yearReleased()), movie->frontCover()});
    for (const auto& genre : genres.value())
        lines << lineOf({bytesOf(genre->genre())});
    return sorted(lines);
}
