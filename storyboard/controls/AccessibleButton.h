#pragma once

#include <QAccessibleObject>

class ButtonItem;

// A ButtonItem as assistive technology sees it.
class AccessibleButton : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    // Makes every ButtonItem known by one of these from now on.
    static void offer();

    explicit AccessibleButton(ButtonItem* button);

    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void* interface_cast(QAccessible::InterfaceType kind) override;

    [[nodiscard]] QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    [[nodiscard]] ButtonItem& button() const;
    [[nodiscard]] QVariant attached(const char* property) const;
};
