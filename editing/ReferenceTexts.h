#pragma once

#include <QStringList>

class NSManagedObjectContext;

// The values of a reference list, sorted by code point, each once (letter case counts): those of `attribute`
// in the records of `entityName`. Records without a value add none. A failed fetch is told on the console and
// gives no values.
[[nodiscard]] QStringList referenceTexts(NSManagedObjectContext& context, const QString& entityName,
                                         const QString& attribute);
