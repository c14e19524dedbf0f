#include "storyboard/controls/ButtonItem.h"

#include "storyboard/controls/AccessibleButton.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlProperty>

ButtonItem::ButtonItem(QQuickItem* parent)
    : QQuickItem(parent)
{
    AccessibleButton::offer();
    connect(this, &QQuickItem::enabledChanged, this, [this] {
        QAccessible::State changed;
        changed.disabled = true;
        changed.focusable = true;
        QAccessibleStateChangeEvent event(this, changed);
        QAccessible::updateAccessibility(&event);
    });
}

// Before the event that announces the item, which the base class sends.
void ButtonItem::componentComplete()
{
    attached = QQmlProperty(this, QStringLiteral("Accessible.role"), qmlContext(this)).object();
    QQuickItem::componentComplete();
}
