#pragma once

#include <QDateTime>
#include <QString>

// `date` in the one form that depends on no locale and no time zone, to the second and always in UTC:
// "2021-03-05 20:15:00 +0000".
[[nodiscard]] QString descriptionOf(const QDateTime& date);
