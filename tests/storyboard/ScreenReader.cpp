#include "tests/storyboard/ScreenReader.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>

namespace {

constexpr auto busName = "accessibility";
constexpr auto accessible = "org.a11y.atspi.Accessible";
constexpr int deepest = 24;
// The bit of that state, from the protocol's StateType.
constexpr int showingState = 25;
const AccessibleReference desktop{"org.a11y.atspi.Registry",
                                  QDBusObjectPath("/org/a11y/atspi/accessible/root")};

QDBusConnection accessibilityBus(const QDBusConnection& session)
{
    const auto ask =
        QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress");
    return QDBusConnection::connectToBus(session.call(ask).arguments().value(0).toString(), busName);
}

} // namespace

ScreenReader::ScreenReader(const QDBusConnection& session)
    : bus(accessibilityBus(session))
{
    qDBusRegisterMetaType<AccessibleReference>();
    qDBusRegisterMetaType<QList<AccessibleReference>>();
    const AccessibleReference registry{desktop.service, QDBusObjectPath("/org/a11y/atspi/registry")};
    for (const char* event :
         {"Object:StateChanged:", "Object:StateChanged:Focused", "Object:StateChanged:Showing"})
        std::ignore = call(registry, "org.a11y.atspi.Registry", "RegisterEvent", {event});
    bus.connect({}, {}, "org.a11y.atspi.Event.Object", "StateChanged", this, SLOT(noteChange()));
}

ScreenReader::~ScreenReader()
{
    QDBusConnection::disconnectFromBus(busName);
}

QDBusMessage ScreenReader::call(const AccessibleReference& object, const QString& interface,
                                const QString& method, const QVariantList& arguments) const
{
    auto message = QDBusMessage::createMethodCall(object.service, object.path.path(), interface, method);
    message.setArguments(arguments);
    return bus.call(message, QDBus::Block, 5000);
}

QList<AccessibleReference> ScreenReader::childrenOf(const AccessibleReference& parent) const
{
    const auto reply = call(parent, accessible, "GetChildren");
    return qdbus_cast<QList<AccessibleReference>>(reply.arguments().value(0));
}

QString ScreenReader::nameOf(const AccessibleReference& object) const
{
    const auto reply = call(object, "org.freedesktop.DBus.Properties", "Get", {accessible, "Name"});
    return reply.arguments().value(0).value<QDBusVariant>().variant().toString();
}

bool ScreenReader::isShownButton(const AccessibleReference& object) const
{
    const auto role = call(object, accessible, "GetRoleName").arguments().value(0).toString();
    const auto states = qdbus_cast<QList<uint>>(call(object, accessible, "GetState").arguments().value(0));
    return role.contains("button") && (states.value(0) & 1U << showingState) != 0;
}

std::optional<AccessibleReference> ScreenReader::find(const AccessibleReference& from, const QString& name,
                                                      int depth) const
{
    if (nameOf(from) == name && isShownButton(from))
        return from;
    if (depth < deepest)
        for (const AccessibleReference& child : childrenOf(from))
            if (auto found = find(child, name, depth + 1))
                return found;
    return std::nullopt;
}

bool ScreenReader::shows(const QString& name) const
{
    return find(desktop, name, 0).has_value();
}

bool ScreenReader::press(const QString& name)
{
    const auto button = find(desktop, name, 0);
    return button && call(*button, "org.a11y.atspi.Action", "DoAction", {0}).arguments().value(0).toBool();
}
