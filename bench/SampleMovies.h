#pragma once

#include "model/SharedValues.h"

#include <QByteArrayList>

// The movie of that number: always the same, with about 350 bytes of text as people write it, and no cover.
[[nodiscard]] MovieFields sampleMovie(int number);

// Some front covers to choose from: JPEG pictures of about 6 kB.
[[nodiscard]] QByteArrayList sampleCovers();
