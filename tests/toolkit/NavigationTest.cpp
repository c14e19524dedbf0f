#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UINavigationController.h"

#include <gtest/gtest.h>

namespace {

class NoSegues : public UIStoryboard
{
public:
    [[nodiscard]] std::optional<SegueTarget> segue(const UIViewController& /*source*/,
                                                   const QString& /*identifier*/) const override
    {
        return std::nullopt;
    }
    void loadView(UIViewController& /*controller*/) override {}
};

class NavigationTest : public testing::Test
{
protected:
    NavigationTest() { navigation.push(std::make_unique<UIViewController>()); }

    NoSegues storyboard;
    UINavigationController navigation{storyboard};
};

TEST_F(NavigationTest, AnUnknownSegueEndsTheProgramNamingIt)
{
    EXPECT_DEATH(navigation.topViewController()->performSegue(QStringLiteral("nowhere")),
                 "Fatal error: UIViewController has no segue with identifier 'nowhere'");
}

TEST_F(NavigationTest, AnAlertIsAwayBeforeItsActionRuns)
{
    UIViewController& hub = *navigation.topViewController();
    const UIViewController* seen = &hub;
    hub.present(UIAlertController::withOk(QStringLiteral("Title"), QStringLiteral("Message"),
                                          [&] { seen = hub.presentedViewController(); }));
    auto* alert = qobject_cast<UIAlertController*>(hub.presentedViewController());
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->cancelIndex(), 0);

    alert->choose(0);
    EXPECT_EQ(seen, nullptr);
    alert->choose(0);
    EXPECT_EQ(hub.presentedViewController(), nullptr) << "a second tap on a leaving alert does nothing";
}

} // namespace
