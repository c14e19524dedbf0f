#include "platform/services/PortalInterfaceStyle.h"

#include "platform/services/Portal.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>

namespace {

const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString schemeKey = QStringLiteral("color-scheme");

// The portal answers a variant in a variant.
QVariant unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

bool paletteIsDark()
{
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

} // namespace

PortalInterfaceStyle::PortalInterfaceStyle(const QDBusConnection& bus)
{
    if (!bus.isConnected())
        return;
    QDBusConnection session(bus);
    // Until then a slot that takes one is never called.
    qRegisterMetaType<QDBusVariant>();
    session.connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                    SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    read << appearanceGroup << schemeKey;
    auto* call = new QDBusPendingCallWatcher(session.asyncCall(read), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, &PortalInterfaceStyle::answered);
}

bool PortalInterfaceStyle::isDark() const
{
    return scheme == Scheme::NoPreference ? paletteIsDark() : scheme == Scheme::Dark;
}

void PortalInterfaceStyle::answered(QDBusPendingCallWatcher* call)
{
    const QDBusPendingReply<QVariant> reply = *call;
    if (reply.isValid())
        setScheme(reply.value());
    call->deleteLater();
}

void PortalInterfaceStyle::settingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group == appearanceGroup && key == schemeKey)
        setScheme(value.variant());
}

void PortalInterfaceStyle::setScheme(const QVariant& value)
{
    const uint number = unwrapped(value).toUInt();
    const bool wasDark = isDark();
    scheme = number <= uint(Scheme::Light) ? Scheme(number) : Scheme::NoPreference;
    if (isDark() != wasDark)
        Q_EMIT changed();
}
