#pragma once

#include <QByteArray>
#include <QString>

// How the user's surroundings are named to ICU. Both are asked anew at each call.
namespace UserLocale {

// The application's default locale as an ICU locale identifier, such as "en_GB".
[[nodiscard]] QByteArray identifier();

// The system's time zone, such as "Europe/Paris"; the environment variable TZ wins.
[[nodiscard]] QString timeZone();

} // namespace UserLocale
