#pragma once

#include <QAccessibleObject>

class ButtonItem;

// A ButtonItem as assistive technology sees it. It evaluates no QML, because Qt asks for states while a
// layout is being destroyed. From the moment the ButtonItem's destructor has run, it is invalid and says so
// in its state.
class AccessibleButton : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    // Makes every ButtonItem known by one of these from now on.
    static void offer();

    explicit AccessibleButton(ButtonItem* button);

    [[nodiscard]] bool isValid() const override;
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
    // Null once the ButtonItem's destructor has run.
    [[nodiscard]] ButtonItem* button() const;
    // The value of a property of the attached `Accessible`; invalid if there is none.
    [[nodiscard]] QVariant attached(const char* property) const;
};
