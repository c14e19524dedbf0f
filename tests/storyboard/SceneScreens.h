#pragma once

#include "platform/toolkit/UITabBarController.h"
#include "tests/storyboard/SceneTest.h"

// Returns a screen of that class, as the first segue that leads there makes it; null if it is in a tab.
inline std::unique_ptr<UIViewController> makeScreen(const QString& screenClass)
{
    const auto isWanted = [&](const UIViewController& screen) {
        return QString(screen.metaObject()->className()) == screenClass;
    };
    for (const SegueDescription& segue : segueDescriptions())
        if (segue.target.makeDestination)
            if (auto screen = segue.target.makeDestination(); isWanted(*screen))
                return screen;
    auto first = Storyboard::makeInitialViewController();
    return isWanted(*first) ? std::move(first) : nullptr;
}

// Any scene, opened in the window.
class SceneScreensTest : public SceneTest
{
protected:
    void openScene(const QString& screenClass)
    {
        if (auto screen = makeScreen(screenClass)) {
            navigation().push(std::move(screen));
        } else {
            follow("TabBarController");
            auto& tabs = static_cast<UITabBarController&>(*navigation().topViewController());
            int tab = 0;
            while (tabs.stack(tab)->topViewController()->metaObject()->className() != screenClass)
                tabs.setSelectedIndex(++tab);
        }
        waitUntilStill();
    }
};
