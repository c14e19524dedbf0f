#include "tests/storyboard/SceneTest.h"

namespace {

class FocusTest : public SceneTest
{
protected:
    // What has the keyboard.
    QString focused()
    {
        auto* item = window->activeFocusItem();
        auto* seen = item != nullptr ? QAccessible::queryAccessibleInterface(item) : nullptr;
        return seen != nullptr ? seen->text(QAccessible::Name) : QString();
    }

    bool isEnabled(const QString& button) { return !visible(QAccessible::Button, button)->state().disabled; }
};

TEST_F(FocusTest, GoesOnFromTheFieldThatWasLeft)
{
    follow("AddMovie");
    qobject_cast<QQuickItem*>(visible(QAccessible::EditableText, "Rating")->object())->forceActiveFocus();
    press(Qt::Key_Escape);
    EXPECT_EQ(focused(), "");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Date Watched");
    ASSERT_TRUE(QTest::qWaitFor([&] { return visible(QAccessible::Button, "Done") != nullptr; }));
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(focused(), "Today");
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Done");
    press(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return focused().isEmpty(); }));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "Rating");
}

TEST_F(FocusTest, GoesOnFromAButtonThatCannotBePressedAnyMore)
{
    follow("ImportExport");
    follow("Export");
    qobject_cast<QQuickItem*>(visible(QAccessible::Button, "Create Export File")->object())
        ->forceActiveFocus();
    EXPECT_FALSE(isEnabled("Save To Files"));
    press(Qt::Key_Tab);
    EXPECT_NE(focused(), "Save To Files") << "it can't be pressed yet";
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    press(Qt::Key_Return);
    queue.advance(std::chrono::milliseconds(999));
    EXPECT_TRUE(isEnabled("Save To Files"));
    EXPECT_FALSE(isEnabled("Create Export File"));
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Save To Files");
}

} // namespace
