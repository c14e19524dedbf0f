#pragma once

#include <QStringList>
#include <random>

class NSManagedObjectContext;

// The films of a walk: real ones, in the fields of the exchange file's lines, made harder to tell apart.

// Some 30 films of the real catalogue. Some share their title with another of another year, one is there
// twice; people, letter case and accents vary.
[[nodiscard]] QList<QStringList> chosenRecords(std::mt19937& random);

// Inserts the film; leaves some texts out, empties others, and has it watched on a day of its own.
void storeFilm(NSManagedObjectContext& context, const QStringList& fields, std::mt19937& random);
