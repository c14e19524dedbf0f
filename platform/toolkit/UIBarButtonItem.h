#pragma once

#include "platform/toolkit/UIButton.h"
#include "platform/toolkit/UIMenu.h"

// A button in a navigation bar or a toolbar. One made with an action runs it when tapped; one that is an
// outlet gets its action from the layout.
class UIBarButtonItem : public UIButton
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Views belong to screens")
    Q_PROPERTY(bool flexibleSpace READ isFlexibleSpace CONSTANT FINAL)

public:
    using UIButton::UIButton;
    explicit UIBarButtonItem(UIAction action);

    // An empty item that pushes its neighbours apart.
    [[nodiscard]] static std::unique_ptr<UIBarButtonItem> makeFlexibleSpace();
    [[nodiscard]] bool isFlexibleSpace() const { return space; }

    Q_INVOKABLE void tap();

private:
    std::function<void()> handler;
    bool space = false;
};
