#pragma once

#include <QString>

// The keys of the settings that say which date picker to use; at most one holds true, but for a file changed
// by hand.
namespace DatePickerSettings {

inline const QString wheel = QStringLiteral("UseDateWheel");
inline const QString calendar = QStringLiteral("UseDateInline");
inline const QString compact = QStringLiteral("UseDateCompact");

} // namespace DatePickerSettings
