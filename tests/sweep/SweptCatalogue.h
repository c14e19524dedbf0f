#pragma once

#include "platform/store/NSManagedObjectContext.h"

#include <QStringList>
#include <map>

class Database;

struct SweptFilm
{
    std::optional<QString> genre;
    std::optional<QString> notes;
    int year = 0;
    std::optional<QByteArray> cover;
};

// What a catalogue must hold, as plain data.
struct SweptCatalogue
{
    // By title.
    std::map<QString, SweptFilm> films;
    QStringList genres;
    // Records that were there before, as `linesOf` reads them.
    QByteArrayList others;

    // One for each record, in a fixed order: two catalogues hold the same if their lines are equal.
    [[nodiscard]] QByteArrayList lines() const;
};

// The lines of a store's records, by SQL alone; every form of the file will do. An error says what is wrong
// with the file or with the references in it.
[[nodiscard]] Result<QByteArrayList> linesOf(Database& database);

// The lines of the objects that the context fetches.
[[nodiscard]] Result<QByteArrayList> linesOf(NSManagedObjectContext& context);
