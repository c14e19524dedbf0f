#include "editing/ReferenceListTableViewController.h"
#include "tests/storyboard/SceneTest.h"

namespace {

using ReferenceScenesTest = SceneTest;

TEST_F(ReferenceScenesTest, AValueIsTypedAndSavedWithoutLeavingTheKeyboard)
{
    follow("ReferenceLists");
    follow("Ratings");
    auto& list = static_cast<ReferenceListTableViewController&>(*navigation().topViewController());
    const auto before = list.listOfValues.size();
    press(Qt::Key_N, Qt::ControlModifier);
    waitUntilStill();
    press(Qt::Key_Return);
    ASSERT_NE(navigation().topViewController()->presentedViewController(), nullptr) << "nothing was typed";
    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return navigation().topViewController()->presentedViewController() == nullptr; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return visible(QAccessible::Button, "OK") == nullptr; }));
    type("aa");
    press(Qt::Key_Return);
    waitUntilStill();
    ASSERT_EQ(navigation().topViewController(), &list);
    EXPECT_EQ(list.listOfValues.size(), before + 1);
    EXPECT_NE(visible(QAccessible::ListItem, "aa"), nullptr);

    press(Qt::Key_End);
    press(Qt::Key_Return);
    waitUntilStill();
    EXPECT_NE(visible(QAccessible::Heading, "Edit Rating"), nullptr);
    type("b");
    press(Qt::Key_S, Qt::ControlModifier);
    waitUntilStill();
    EXPECT_NE(visible(QAccessible::ListItem, "aab"), nullptr);
}

} // namespace
