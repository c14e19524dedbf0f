#include "model/Migrations.h"

namespace {

// Statements end with a semicolon at the end of a line.
constexpr auto createCatalogue = R"sql(
CREATE TABLE "Movies" (
    id INTEGER PRIMARY KEY,
    "actors" TEXT CHECK (typeof("actors") IN ('text', 'null')),
    "dateWatched" INTEGER CHECK (typeof("dateWatched") IN ('integer', 'null')),
    "directors" TEXT CHECK (typeof("directors") IN ('text', 'null')),
    "genre" TEXT CHECK (typeof("genre") IN ('text', 'null')),
    "movieName" TEXT CHECK (typeof("movieName") IN ('text', 'null')),
    "notes" TEXT CHECK (typeof("notes") IN ('text', 'null')),
    "producers" TEXT CHECK (typeof("producers") IN ('text', 'null')),
    "provider" TEXT CHECK (typeof("provider") IN ('text', 'null')),
    "rating" TEXT CHECK (typeof("rating") IN ('text', 'null')),
    "runTime" INTEGER DEFAULT 0 CHECK (
        "runTime" IS NULL OR (typeof("runTime") = 'integer' AND "runTime" BETWEEN -32768 AND 32767)),
    "wDay" INTEGER DEFAULT 0 CHECK (
        "wDay" IS NULL OR (typeof("wDay") = 'integer' AND "wDay" BETWEEN -32768 AND 32767)),
    "wMonth" INTEGER DEFAULT 0 CHECK (
        "wMonth" IS NULL OR (typeof("wMonth") = 'integer' AND "wMonth" BETWEEN -32768 AND 32767)),
    "wYear" INTEGER DEFAULT 0 CHECK (
        "wYear" IS NULL OR (typeof("wYear") = 'integer' AND "wYear" BETWEEN -32768 AND 32767)),
    "yearReleased" INTEGER DEFAULT 0 CHECK (
        "yearReleased" IS NULL OR (typeof("yearReleased") = 'integer' AND "yearReleased" BETWEEN -32768 AND 32767)));
CREATE TABLE "Movies_frontCover" (
    record INTEGER PRIMARY KEY REFERENCES "Movies" (id) ON DELETE CASCADE,
    "frontCover" BLOB NOT NULL);
CREATE INDEX "Movies_by_movieName" ON "Movies" ("movieName");
CREATE INDEX "Movies_by_genre_movieName" ON "Movies" ("genre", "movieName");
CREATE INDEX "Movies_by_yearReleased_movieName" ON "Movies" ("yearReleased", "movieName");
CREATE INDEX "Movies_by_rating_movieName" ON "Movies" ("rating", "movieName");
CREATE INDEX "Movies_by_provider" ON "Movies" ("provider");
CREATE INDEX "Movies_by_dateWatched" ON "Movies" ("dateWatched");
CREATE INDEX "Movies_by_wYear_wMonth" ON "Movies" ("wYear", "wMonth");
CREATE TABLE "Genres" (id INTEGER PRIMARY KEY, "genre" TEXT CHECK (typeof("genre") IN ('text', 'null')));
CREATE TABLE "Providers" (id INTEGER PRIMARY KEY, "name" TEXT CHECK (typeof("name") IN ('text', 'null')));
CREATE TABLE "Ratings" (id INTEGER PRIMARY KEY, "rating" TEXT CHECK (typeof("rating") IN ('text', 'null')));
CREATE TABLE "Actors" (id INTEGER PRIMARY KEY, "name" TEXT CHECK (typeof("name") IN ('text', 'null')));
)sql";

// A table's columns can't be changed in place. Movies_frontCover goes on to refer to the table of its name.
constexpr auto replaceAbsentNumbers = R"sql(
CREATE TABLE "NewMovies" (
    id INTEGER PRIMARY KEY,
    "actors" TEXT CHECK (typeof("actors") IN ('text', 'null')),
    "dateWatched" INTEGER CHECK (typeof("dateWatched") IN ('integer', 'null')),
    "directors" TEXT CHECK (typeof("directors") IN ('text', 'null')),
    "genre" TEXT CHECK (typeof("genre") IN ('text', 'null')),
    "movieName" TEXT CHECK (typeof("movieName") IN ('text', 'null')),
    "notes" TEXT CHECK (typeof("notes") IN ('text', 'null')),
    "producers" TEXT CHECK (typeof("producers") IN ('text', 'null')),
    "provider" TEXT CHECK (typeof("provider") IN ('text', 'null')),
    "rating" TEXT CHECK (typeof("rating") IN ('text', 'null')),
    "runTime" INTEGER NOT NULL DEFAULT 0 CHECK (typeof("runTime") = 'integer' AND "runTime" BETWEEN -32768 AND 32767),
    "wDay" INTEGER NOT NULL DEFAULT 0 CHECK (typeof("wDay") = 'integer' AND "wDay" BETWEEN -32768 AND 32767),
    "wMonth" INTEGER NOT NULL DEFAULT 0 CHECK (typeof("wMonth") = 'integer' AND "wMonth" BETWEEN -32768 AND 32767),
    "wYear" INTEGER NOT NULL DEFAULT 0 CHECK (typeof("wYear") = 'integer' AND "wYear" BETWEEN -32768 AND 32767),
    "yearReleased" INTEGER NOT NULL DEFAULT 0 CHECK (typeof("yearReleased") = 'integer' AND "yearReleased" BETWEEN -32768 AND 32767));
INSERT INTO "NewMovies"
    SELECT id, "actors", "dateWatched", "directors", "genre", "movieName", "notes", "producers", "provider", "rating",
           ifnull("runTime", 0), ifnull("wDay", 0), ifnull("wMonth", 0), ifnull("wYear", 0), ifnull("yearReleased", 0)
    FROM "Movies";
DROP TABLE "Movies";
ALTER TABLE "NewMovies" RENAME TO "Movies";
CREATE INDEX "Movies_by_movieName" ON "Movies" ("movieName");
CREATE INDEX "Movies_by_genre_movieName" ON "Movies" ("genre", "movieName");
CREATE INDEX "Movies_by_yearReleased_movieName" ON "Movies" ("yearReleased", "movieName");
CREATE INDEX "Movies_by_rating_movieName" ON "Movies" ("rating", "movieName");
CREATE INDEX "Movies_by_provider" ON "Movies" ("provider");
CREATE INDEX "Movies_by_dateWatched" ON "Movies" ("dateWatched");
CREATE INDEX "Movies_by_wYear_wMonth" ON "Movies" ("wYear", "wMonth");
)sql";

QByteArrayList statementsOf(const QByteArray& script)
{
    QByteArrayList statements;
    qsizetype start = 0;
    for (auto end = script.indexOf(";\n"); end >= 0; end = script.indexOf(";\n", start)) {
        statements << script.mid(start, end - start).trimmed();
        start = end + 2;
    }
    return statements;
}

} // namespace

std::vector<NSMigration> MarrowvaleModel::migrations()
{
    return {{QStringLiteral("create catalogue"), statementsOf(createCatalogue)},
            {QStringLiteral("replace absent numbers"), statementsOf(replaceAbsentNumbers)}};
}
