#pragma once

#include <QString>

// `people`, a line each, on one line: every line break becomes a comma, and one comma at the end goes.
[[nodiscard]] QString peopleOnOneLine(QString people);
