#pragma once

#include "exchange/ExchangeField.h"
#include "platform/store/NSFetchRequest.h"

class NSManagedObject;

// What a movie has for each field of the exchange file.
using ExchangeValues = std::array<AttributeValue, exchangeFieldCount>;

// All movies, in the order in which they are written.
[[nodiscard]] NSFetchRequest exchangeRequest();

// What stands before the first record.
[[nodiscard]] QString exchangeOpening();

// `movie` must be of the entity Movies. On the store's thread, as it reads the cover; what it answers may go
// to another.
[[nodiscard]] ExchangeValues exchangeValues(const NSManagedObject& movie);

// One record with the empty line after it. Depends on `values` alone, so records may be written on several
// threads at once. Fails when the cover is no picture; the error names the movie.
[[nodiscard]] Result<QString> exchangeRecord(const ExchangeValues& values);
