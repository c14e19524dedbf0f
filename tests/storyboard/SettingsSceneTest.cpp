#include "browse/DefaultsViewController.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/services/LinuxReviewPrompt.h"
#include "platform/services/SKStoreReviewController.h"
#include "tests/storyboard/SceneTest.h"

namespace {

class SettingsSceneTest : public SceneTest
{
protected:
    bool isChecked(const QString& name) { return visible(QAccessible::CheckBox, name)->state().checked; }

    QPoint middleOf(const QString& name)
    {
        const auto* item = qobject_cast<QQuickItem*>(visible(QAccessible::CheckBox, name)->object());
        return item->mapRectToScene(item->boundingRect()).center().toPoint();
    }

    static QVariant stored(const QString& key)
    {
        return UserDefaults::standard().objectForKey(key).value_or(QVariant());
    }
};

TEST_F(SettingsSceneTest, EveryWayToTurnASwitchTurnsItOnce)
{
    follow("Settings");
    const QAccessibleInterface* toggle = visible(QAccessible::CheckBox, "Use Date Wheel");
    ASSERT_NE(toggle, nullptr);
    EXPECT_TRUE(toggle->state().checkable);

    QAccessibleActionInterface& actions =
        *visible(QAccessible::CheckBox, "Use Date Wheel")->actionInterface();
    const QPoint label(40, middleOf("Use Date Wheel").y());
    const std::vector<std::function<void()>> ways{
        [&] { actions.doAction(QAccessibleActionInterface::pressAction()); },
        [&] { actions.doAction(QAccessibleActionInterface::toggleAction()); },
        [&] { QTest::mouseClick(window.get(), Qt::LeftButton, {}, middleOf("Use Date Wheel")); },
        [&] { QTest::mouseClick(window.get(), Qt::LeftButton, {}, label); },
        [&] {
            qobject_cast<QQuickItem*>(toggle->object())->forceActiveFocus();
            press(Qt::Key_Space);
        },
    };
    for (const auto& turn : ways) {
        const bool before = isChecked("Use Date Wheel");
        UserDefaults::standard().setBool(false, "UseDateWheel");
        turn();
        EXPECT_NE(isChecked("Use Date Wheel"), before);
        EXPECT_EQ(stored("UseDateWheel"), !before) << "turning off stores nothing";
    }
    visible(QAccessible::CheckBox, "Use Compact Date")
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(isChecked("Use Date Wheel"));
    EXPECT_TRUE(isChecked("Use Compact Date"));
}

TEST_F(SettingsSceneTest, TheDateFieldComesWithItsSwitchAndThePickerInTheStyleLastChosen)
{
    follow("Settings");
    auto& screen = static_cast<DefaultsViewController&>(*navigation().topViewController());
    EXPECT_EQ(visible(QAccessible::EditableText, "Default Date"), nullptr);
    screen.DefaultDateSwitch->toggle();
    EXPECT_EQ(stored("UseDefaultDate"), true);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return visible(QAccessible::EditableText, "Default Date") != nullptr; }));

    const std::pair<UISwitch*, std::pair<QAccessible::Role, QString>> styles[] = {
        {screen.wheelSwitch, {QAccessible::List, "Month"}},
        {screen.inlineSwitch, {QAccessible::Button, "Next Month"}},
        {screen.wheelSwitch, {QAccessible::List, "Month"}},
    };
    for (const bool staysOpen : {false, true})
        for (const auto& [toggle, sign] : styles) {
            toggle->toggle();
            screen.dateTextField->becomeFirstResponder();
            const QAccessible::Role role = sign.first;
            const QString& name = sign.second;
            EXPECT_TRUE(QTest::qWaitFor([&] { return visible(role, name) != nullptr; })) << qPrintable(name);
            if (staysOpen)
                continue;
            screen.endEditing();
            EXPECT_TRUE(QTest::qWaitFor([&] { return visible(QAccessible::Button, "Done") == nullptr; }));
        }
}

using ReviewSceneTest = SceneTest;

TEST_F(ReviewSceneTest, TheWindowInFrontAsksForAReview)
{
    device.reviewPrompt = std::make_unique<LinuxReviewPrompt>();
    EXPECT_EQ(window->activationState(), UIWindowScene::ActivationState::ForegroundActive);
    SKStoreReviewController::requestReviewInScene(*window);
    EXPECT_TRUE(QTest::qWaitFor([&] { return visible(QAccessible::Button, "Write a Review") != nullptr; }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return visible(QAccessible::Button, "Write a Review") == nullptr; }));
    EXPECT_EQ(device.addressOpenerTwin->opened, QList<QUrl>());
}

} // namespace
