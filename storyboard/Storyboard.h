#pragma once

#include "platform/toolkit/UIStoryboard.h"

// The screens of the program and the ways between them, as the scene table says. Without a layout loader
// screens run unseen, as in tests.
class Storyboard : public UIStoryboard
{
public:
    using LayoutLoader = std::function<void(UIViewController&)>;

    explicit Storyboard(LayoutLoader loader = nullptr);

    // The first screen of the program: the home menu.
    [[nodiscard]] static std::unique_ptr<UIViewController> makeInitialViewController();

    [[nodiscard]] std::optional<SegueTarget> segue(const UIViewController& source,
                                                   const QString& identifier) const override;
    void loadView(UIViewController& controller) override;

private:
    LayoutLoader loader;
};
