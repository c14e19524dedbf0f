#pragma once

#include <QString>

// Where the desktop portal stands on the session bus.
inline const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
