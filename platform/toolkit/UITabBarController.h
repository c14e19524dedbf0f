#pragma once

#include "platform/toolkit/UINavigationController.h"
#include "platform/toolkit/UITabBarItem.h"

// Screens side by side, one shown at a time, each at the root of a navigation stack of its own. A tab's root
// is made when the tab is first shown and lives, with what lies above it, as long as this does.
class UITabBarController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(int tabCount READ tabCount CONSTANT FINAL)
    Q_PROPERTY(int selectedIndex READ selectedIndex WRITE setSelectedIndex NOTIFY selectedIndexChanged FINAL)

public:
    struct Tab
    {
        QString title;
        std::function<std::unique_ptr<UIViewController>()> makeRoot;
    };

    // At least one tab; the first one is shown first.
    explicit UITabBarController(std::vector<Tab> wanted);

    void viewDidLoad() override;
    void viewDidDisappear(bool animated) override;

    [[nodiscard]] int tabCount() const { return static_cast<int>(tabs.size()); }
    // An index from 0 to tabCount() - 1; any other one is a programming error.
    Q_INVOKABLE [[nodiscard]] UITabBarItem* item(int index) const;
    // The stack of a tab, empty until the tab is first shown. This must stand in a container by then.
    Q_INVOKABLE [[nodiscard]] UINavigationController* stack(int index);

    [[nodiscard]] int selectedIndex() const { return selected; }
    // Any other index than a tab's does nothing. The tab on show, chosen again, goes back to its root.
    void setSelectedIndex(int index);

Q_SIGNALS:
    void selectedIndexChanged();

private:
    struct Place
    {
        std::function<std::unique_ptr<UIViewController>()> makeRoot;
        UITabBarItem* item;
        // Null until the tab is asked for.
        UINavigationController* stack;
    };

    void showSelected();

    std::vector<Place> tabs;
    int selected = 0;
};
