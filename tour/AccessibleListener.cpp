#include "tour/AccessibleListener.h"

#include <QAccessible>
#include <QAccessibleBridge>

namespace {

int events = 0;

// Doesn't check whether the interface is valid, because Qt's bridge to the desktop doesn't either.
void inspect(QAccessibleInterface& seen)
{
    seen.state();
    seen.role();
    seen.text(QAccessible::Name);
    seen.text(QAccessible::Description);
    seen.rect();
    seen.window();
    for (int child = 0; child < seen.childCount(); ++child)
        seen.child(child);
    if (QAccessibleActionInterface* actions = seen.actionInterface(); actions != nullptr)
        actions->actionNames();
}

class ListeningBridge : public QAccessibleBridge
{
public:
    void setRootObject(QAccessibleInterface* /*root*/) override {}

    void notifyAccessibilityUpdate(QAccessibleEvent* event) override
    {
        ++events;
        QAccessibleInterface* seen = event->accessibleInterface();
        if (seen == nullptr)
            return;
        inspect(*seen);
        if (QAccessibleInterface* around = seen->parent(); around != nullptr)
            inspect(*around);
    }
};

} // namespace

class AccessibleListenerPlugin : public QAccessibleBridgePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QAccessibleBridgeFactoryInterface_iid FILE "AccessibleListener.json")

public:
    QAccessibleBridge* create(const QString& /*key*/) override { return new ListeningBridge; }
};

#include "AccessibleListener.moc"

void AccessibleListener::start()
{
    static const bool started = [] {
        qRegisterStaticPluginFunction(qt_static_plugin_AccessibleListenerPlugin());
        return true;
    }();
    Q_UNUSED(started)
}

int AccessibleListener::eventCount()
{
    return events;
}
