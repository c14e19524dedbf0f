#pragma once

#include "platform/toolkit/UINavigationController.h"

// A storyboard without screens of its own: a segue "unwindTo…" unwinds to the action of that name, any other
// one shows an empty screen that can unwind again.
class PlainStoryboard : public UIStoryboard
{
public:
    [[nodiscard]] std::optional<SegueTarget> segue(const UIViewController& /*source*/,
                                                   const QString& identifier) const override
    {
        if (identifier.startsWith("unwindTo"))
            return SegueTarget{nullptr, identifier + "WithSegue"};
        return SegueTarget{[] { return std::make_unique<UIViewController>(); }, {}};
    }

    void loadView(UIViewController& /*controller*/) override {}
};
