#include "exchange/ExportViewController.h"
#include "tests/storyboard/SceneTest.h"

#include <gmock/gmock.h>

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

TEST_F(FocusTest, ALongTextIsEditedFromItsFirstLineToItsLast)
{
    for (int movie = 0; movie < 100; ++movie)
        given({.name = QString("Movie of a catalogue, number %1").arg(movie), .genre = "Drama"});
    follow("ImportExport");
    follow("Export");
    auto& screen = static_cast<ExportViewController&>(*navigation().topViewController());
    screen.CreateUpdateFile();
    queue.advance(std::chrono::milliseconds(999));
    qobject_cast<QQuickItem*>(visible(QAccessible::List, "File Text")->object())->forceActiveFocus();
    press(Qt::Key_Return);
    type("a");
    press(Qt::Key_End, Qt::ControlModifier);
    type("z");
    press(Qt::Key_Home, Qt::ControlModifier);
    for (int line = 0; line < 400; ++line)
        press(Qt::Key_Down);
    type("y");
    const auto text = [&] { return screen.ExportTextView->text(); };
    EXPECT_EQ(text().left(2), "a[");
    EXPECT_THAT(text().right(4).toStdString(), testing::AnyOf("\n\nyz", "\n\nzy"));
    press(Qt::Key_Up);
    press(Qt::Key_Escape);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Back");
    EXPECT_FALSE(text().contains('\t'));
}

} // namespace
