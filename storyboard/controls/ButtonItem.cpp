#include "storyboard/controls/ButtonItem.h"

#include "storyboard/controls/AccessibleButton.h"

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
