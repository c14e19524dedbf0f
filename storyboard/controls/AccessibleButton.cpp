#include "storyboard/controls/AccessibleButton.h"

#include "storyboard/controls/ButtonItem.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QQuickWindow>

void AccessibleButton::offer()
{
    static const bool offered = [] {
        QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
            auto* button = qobject_cast<ButtonItem*>(object);
            return button != nullptr ? new AccessibleButton(button) : nullptr;
        });
        return true;
    }();
    Q_UNUSED(offered)
}

AccessibleButton::AccessibleButton(ButtonItem* button)
    : QAccessibleObject(button)
{
}

ButtonItem& AccessibleButton::button() const
{
    return *static_cast<ButtonItem*>(object());
}

QVariant AccessibleButton::attached(const char* property) const
{
    return QQmlProperty::read(&button(), QStringLiteral("Accessible.") + QLatin1String(property),
                              qmlContext(&button()));
}

// Not every item around it is one that assistive technology sees.
QAccessibleInterface* AccessibleButton::parent() const
{
    const QQuickWindow* window = button().window();
    QQuickItem* around = button().parentItem();
    while (around != nullptr && (window == nullptr || around != window->contentItem())) {
        if (auto* seen = QAccessible::queryAccessibleInterface(around); seen != nullptr)
            return seen;
        around = around->parentItem();
    }
    return QAccessible::queryAccessibleInterface(button().window());
}

QWindow* AccessibleButton::window() const
{
    return button().window();
}

QRect AccessibleButton::rect() const
{
    const QQuickWindow* window = button().window();
    if (window == nullptr)
        return {};
    const QRectF inWindow = button().mapRectToScene(button().boundingRect());
    return {window->mapToGlobal(inWindow.topLeft().toPoint()), inWindow.size().toSize()};
}

QAccessible::Role AccessibleButton::role() const
{
    return static_cast<QAccessible::Role>(attached("role").toInt());
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state;
    const QQuickItem& item = button();
    state.disabled = !item.isEnabled();
    state.invisible = item.window() == nullptr || !item.window()->isVisible() || !item.isVisible() ||
                      qFuzzyIsNull(item.opacity());
    state.focusable = item.isEnabled() && item.activeFocusOnTab();
    state.focused = item.hasActiveFocus();
    state.selectable = attached("selectable").toBool();
    state.selected = attached("selected").toBool();
    return state;
}

QString AccessibleButton::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return attached("name").toString();
    case QAccessible::Description:
        return attached("description").toString();
    default:
        return {};
    }
}

void* AccessibleButton::interface_cast(QAccessible::InterfaceType kind)
{
    return kind == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

void AccessibleButton::doAction(const QString& name)
{
    if (!button().isEnabled())
        return;
    if (name == setFocusAction())
        button().forceActiveFocus();
    else if (name == pressAction())
        Q_EMIT button().pressAsked();
}
