#include "tests/services/StandInPortal.h"

#include <gtest/gtest.h>

StandInPortal::StandInPortal(const QDBusConnection& bus)
{
    QDBusConnection connection(bus);
    EXPECT_TRUE(
        connection.registerObject("/org/freedesktop/portal/desktop", this,
                                  QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
    EXPECT_TRUE(connection.registerService("org.freedesktop.portal.Desktop"));
}

QDBusVariant StandInPortal::Read(const QString& group, const QString& key)
{
    ++asked;
    if (!scheme)
        setDelayedReply(true);
    else if (group != "org.freedesktop.appearance" || key != "color-scheme")
        sendErrorReply("org.freedesktop.portal.Error.NotFound", "Requested setting not found");
    return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme.value_or(0))));
}
