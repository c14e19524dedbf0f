#include "storyboard/controls/AccessibleButton.h"

#include "storyboard/controls/ButtonItem.h"

#include <QQuickWindow>

void AccessibleButton::offer()
{
    static const bool offered = [] {
        QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
            auto* button = dynamic_cast<ButtonItem*>(object);
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

// qobject_cast goes by the QML type, which outlives the ButtonItem part of the object.
ButtonItem* AccessibleButton::button() const
{
    return dynamic_cast<ButtonItem*>(object());
}

QVariant AccessibleButton::attached(const char* property) const
{
    const ButtonItem* item = button();
    const QObject* values = item != nullptr ? item->accessibleAttached() : nullptr;
    return values != nullptr ? values->property(property) : QVariant();
}

bool AccessibleButton::isValid() const
{
    return button() != nullptr;
}

// Not every item around it is one that assistive technology sees.
QAccessibleInterface* AccessibleButton::parent() const
{
    const ButtonItem* item = button();
    QQuickWindow* window = item != nullptr ? item->window() : nullptr;
    if (window == nullptr)
        return nullptr;
    for (QQuickItem* around = item->parentItem(); around != nullptr && around != window->contentItem();
         around = around->parentItem())
        if (auto* seen = QAccessible::queryAccessibleInterface(around); seen != nullptr)
            return seen;
    return QAccessible::queryAccessibleInterface(window);
}

QWindow* AccessibleButton::window() const
{
    const ButtonItem* item = button();
    return item != nullptr ? item->window() : nullptr;
}

QRect AccessibleButton::rect() const
{
    const ButtonItem* item = button();
    const QQuickWindow* window = item != nullptr ? item->window() : nullptr;
    if (window == nullptr)
        return {};
    const QRectF inWindow = item->mapRectToScene(item->boundingRect());
    return {window->mapToGlobal(inWindow.topLeft().toPoint()), inWindow.size().toSize()};
}

QAccessible::Role AccessibleButton::role() const
{
    return static_cast<QAccessible::Role>(attached("role").toInt());
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State state;
    const ButtonItem* item = button();
    if (item == nullptr) {
        state.invalid = true;
        state.invisible = true;
        return state;
    }
    state.disabled = !item->isEnabled();
    state.invisible = item->window() == nullptr || !item->window()->isVisible() || !item->isVisible() ||
                      qFuzzyIsNull(item->opacity());
    state.focusable = item->isEnabled() && item->activeFocusOnTab();
    state.focused = item->hasActiveFocus();
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
    ButtonItem* item = button();
    if (item == nullptr || !item->isEnabled())
        return;
    if (name == setFocusAction())
        item->forceActiveFocus();
    else if (name == pressAction())
        Q_EMIT item->pressAsked();
}
