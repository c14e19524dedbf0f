#pragma once

#include "platform/services/InterfaceStyle.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QVariant>

class QDBusPendingCallWatcher;

// Dark or light as the desktop portal says; where it doesn't, as the palette is. Asks once without waiting,
// then follows the portal's changes.
class PortalInterfaceStyle : public InterfaceStyle
{
    Q_OBJECT

public:
    explicit PortalInterfaceStyle(const QDBusConnection& bus);

    [[nodiscard]] bool isDark() const override;

private:
    Q_SLOT void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void answered(QDBusPendingCallWatcher* call);
    void setScheme(const QVariant& value);

    // The portal's "color-scheme".
    enum class Scheme { NoPreference = 0, Dark = 1, Light = 2 };
    Scheme scheme = Scheme::NoPreference;
};
