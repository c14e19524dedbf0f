#pragma once

#include "platform/toolkit/UIViewController.h"

#include <vector>

// A stack of screens, the last one shown. Screens are owned here from being pushed to being popped; a popped
// screen that nobody else holds is destroyed when the event loop is next reached, since its own action may
// have popped it.
class UINavigationController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(UIViewController* topViewController READ topViewController NOTIFY topChanged FINAL)
    Q_PROPERTY(int depth READ depth NOTIFY topChanged FINAL)
    Q_PROPERTY(bool navigationBarHidden READ isNavigationBarHidden NOTIFY navigationBarChanged FINAL)

public:
    // `storyboard` must outlive the controller.
    explicit UINavigationController(UIStoryboard& storyboard, QObject* parent = nullptr);
    ~UINavigationController() override;

    // An empty stack that stands within `host`, a screen of this stack, which owns it. Unwinding that finds
    // nothing in there goes on below `host`.
    [[nodiscard]] UINavigationController* makeStackWithin(UIViewController& host) const;
    // The screen within which this stack stands; null: none.
    [[nodiscard]] UIViewController* host() const { return hostScreen; }

    // Null while empty.
    [[nodiscard]] UIViewController* topViewController() const;
    // The first screen pushed; null while empty.
    [[nodiscard]] UIViewController* rootViewController() const;
    [[nodiscard]] int depth() const { return static_cast<int>(stack.size()); }

    void push(std::unique_ptr<UIViewController> controller);
    // Goes back one screen, as the back button does; the root stays.
    Q_INVOKABLE void pop();
    void popToRoot();

    // Called by UIViewController::performSegue.
    void perform(UIViewController& source, const QString& identifier);

    [[nodiscard]] bool isNavigationBarHidden() const { return barHidden; }
    void setNavigationBarHidden(bool hidden, bool animated);

Q_SIGNALS:
    // The screen is loaded and on top.
    void pushed(UIViewController* controller);
    // The screen left the stack. A view that still shows it, fading, may hold on to it.
    void popped(const std::shared_ptr<UIViewController>& controller);
    void topChanged();
    void navigationBarChanged();

private:
    void show(std::unique_ptr<UIViewController> destination, UIViewController& source,
              const QString& identifier);
    // To the nearest screen below `from` that has the segue's action.
    void unwind(const UIViewController& from, UIStoryboardSegue segue, const QString& action);
    void popTo(std::size_t depth);
    [[nodiscard]] std::size_t positionOf(const UIViewController& controller) const;

    UIStoryboard& storyboard;
    UIViewController* hostScreen = nullptr;
    std::vector<std::shared_ptr<UIViewController>> stack;
    bool barHidden = false;
};
