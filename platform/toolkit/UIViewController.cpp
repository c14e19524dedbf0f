#include "platform/toolkit/UIViewController.h"

#include "platform/toolkit/UIBarButtonItem.h"
#include "platform/toolkit/UITabBarController.h"
#include "platform/toolkit/UITextInput.h"

UIViewController::UIViewController(QObject* parent)
    : QObject(parent)
{
}

UIViewController::~UIViewController() = default;

void UIViewController::viewWillAppear(bool /*animated*/) {}

void UIViewController::viewDidDisappear(bool /*animated*/) {}

void UIViewController::prepareForSegue(const UIStoryboardSegue& /*segue*/) {}

void UIViewController::setTitle(const QString& value)
{
    titleText = value;
    Q_EMIT changed();
}

void UIViewController::setRightBarButtonItem(std::unique_ptr<UIBarButtonItem> item)
{
    rightItem = std::move(item);
    Q_EMIT changed();
}

void UIViewController::performSegue(const QString& identifier)
{
    if (navigation != nullptr)
        navigation->perform(*this, identifier);
}

void UIViewController::setNavigationController(UINavigationController* controller)
{
    navigation = controller;
    Q_EMIT changed();
}

UITabBarController* UIViewController::tabBarController() const
{
    return navigation == nullptr ? nullptr : qobject_cast<UITabBarController*>(navigation->host());
}

bool UIViewController::isFrontmost() const
{
    for (const UIViewController* above = presented; above != nullptr; above = above->presented)
        if (above->isModal())
            return false;
    const bool onTop = navigation != nullptr && navigation->topViewController() == this;
    return onTop && (navigation->host() == nullptr || navigation->host()->isFrontmost());
}

bool UIViewController::canGoBack() const
{
    return navigation != nullptr && navigation->rootViewController() != this;
}

void UIViewController::goBack()
{
    if (navigation != nullptr && navigation->topViewController() == this)
        navigation->pop();
}

void UIViewController::present(std::unique_ptr<UIViewController> controller)
{
    if (presented != nullptr) {
        presented->present(std::move(controller));
        return;
    }
    presented = controller.release();
    presented->setParent(this);
    presented->presenting = this;
    presented->loadViewIfNeeded(nullptr);
    Q_EMIT presentedChanged();
    presented->viewWillAppear(true);
}

void UIViewController::dismiss()
{
    if (presented == nullptr)
        return;
    // It may be in the middle of the call that led here.
    presented->deleteLater();
    presented->presenting = nullptr;
    UIViewController* gone = std::exchange(presented, nullptr);
    Q_EMIT presentedChanged();
    gone->viewDidDisappear(true);
}

void UIViewController::endEditing()
{
    const auto inputs = findChildren<UITextInput*>();
    for (UITextInput* input : inputs)
        input->resignFirstResponder();
}

void UIViewController::loadViewIfNeeded(UIStoryboard* storyboard)
{
    if (std::exchange(loaded, true))
        return;
    if (storyboard != nullptr)
        storyboard->loadView(*this);
    viewDidLoad();
}
