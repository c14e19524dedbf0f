#include "tests/services/StandInPortal.h"

#include <QDBusMessage>
#include <gtest/gtest.h>

namespace {

const QString path = "/org/freedesktop/portal/desktop";

} // namespace

StandInPortal::StandInPortal(QDBusConnection connection)
    : bus(std::move(connection))
{
    EXPECT_TRUE(bus.registerObject(path, this, QDBusConnection::ExportAllSlots));
    EXPECT_TRUE(bus.registerService("org.freedesktop.portal.Desktop"));
}

// A message of its own: a signal relayed by the library may be lost while the object is still being
// registered.
void StandInPortal::tellChange(const QString& group, const QString& key, uint value)
{
    QDBusMessage change =
        QDBusMessage::createSignal(path, "org.freedesktop.portal.Settings", "SettingChanged");
    change << group << key << QVariant::fromValue(QDBusVariant(value));
    EXPECT_TRUE(bus.send(change));
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
