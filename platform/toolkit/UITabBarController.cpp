#include "platform/toolkit/UITabBarController.h"

#include "platform/toolkit/UIBarButtonItem.h"

UITabBarController::UITabBarController(std::vector<Tab> wanted)
{
    for (Tab& tab : wanted)
        tabs.push_back({std::move(tab.makeRoot), new UITabBarItem(std::move(tab.title), this), nullptr});
}

void UITabBarController::viewDidLoad()
{
    showSelected();
}

void UITabBarController::viewDidDisappear(bool animated)
{
    const Place& shown = tabs[static_cast<std::size_t>(selected)];
    if (shown.stack != nullptr && shown.stack->topViewController() != nullptr)
        shown.stack->topViewController()->viewDidDisappear(animated);
}

UITabBarItem* UITabBarController::item(int index) const
{
    return tabs.at(static_cast<std::size_t>(index)).item;
}

UINavigationController* UITabBarController::stack(int index)
{
    Place& place = tabs.at(static_cast<std::size_t>(index));
    if (place.stack == nullptr)
        place.stack = navigationController()->makeStackWithin(*this);
    return place.stack;
}

void UITabBarController::setSelectedIndex(int index)
{
    if (index < 0 || index >= tabCount())
        return;
    if (index == selected) {
        stack(index)->popToRoot();
        return;
    }
    UIViewController* covered = stack(selected)->topViewController();
    selected = index;
    showSelected();
    Q_EMIT selectedIndexChanged();
    if (covered != nullptr) {
        covered->endEditing();
        covered->viewDidDisappear(false);
    }
}

void UITabBarController::showSelected()
{
    UINavigationController& shown = *stack(selected);
    if (shown.topViewController() == nullptr)
        shown.push(tabs[static_cast<std::size_t>(selected)].makeRoot());
    else
        shown.topViewController()->viewWillAppear(false);
}
