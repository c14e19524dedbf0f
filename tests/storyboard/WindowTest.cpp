#include "browse/ViewController.h"
#include "editing/AddMovieViewController.h"
#include "platform/toolkit/UIAlertController.h"
#include "tests/storyboard/SceneTest.h"
#include "tests/support/ForeignLock.h"

#include <QPointer>

namespace {

using WindowTest = SceneTest;

TEST_F(WindowTest, AssistiveTechnologyPressesButtons)
{
    EXPECT_EQ(visible(QAccessible::Button, "Movie List"), nullptr) << "the menu starts folded in";
    visible(QAccessible::Button, "Menu")
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(QTest::qWaitFor([&] { return visible(QAccessible::Button, "Movie List") != nullptr; }));
    visible(QAccessible::Button, "Movie List")
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(navigation().depth(), 2);
}

TEST_F(WindowTest, TheKeyboardSearchesAddsAndGoesBack)
{
    follow("MovieList");
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Q);
    EXPECT_NE(visible(QAccessible::StaticText, "# Movies = 0 of 1"), nullptr);
    press(Qt::Key_Escape);
    EXPECT_NE(visible(QAccessible::StaticText, "# Movies = 1"), nullptr) << "the first one ends the search";
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_NE(qobject_cast<AddMovieViewController*>(navigation().topViewController()), nullptr);
    for (const int depth : {2, 1, 1}) {
        waitUntilStill();
        press(Qt::Key_Escape);
        EXPECT_EQ(navigation().depth(), depth);
    }
}

TEST_F(WindowTest, ClosingAsksWhileSomethingIsNotSaved)
{
    const ForeignLock lock;
    context().insert<Movies>();
    ASSERT_FALSE(context().save());
    const QString notice = AppDelegate::shared().keeper().notice();
    EXPECT_TRUE(QTest::qWaitFor([&] { return visible(QAccessible::AlertMessage, notice) != nullptr; }));
    for (const bool closes : {false, true}) {
        EXPECT_FALSE(window->close());
        EXPECT_FALSE(window->close()) << "asked once";
        auto* question =
            qobject_cast<UIAlertController*>(navigation().topViewController()->presentedViewController());
        ASSERT_NE(question, nullptr);
        EXPECT_EQ(question->message(), "1 change is not saved.");
        EXPECT_EQ(question->actionTitles(), QStringList({"Keep Open", "Close Anyway"}));
        question->choose(closes ? 1 : 0);
        EXPECT_EQ(window->isVisible(), !closes);
        EXPECT_EQ(navigation().topViewController()->presentedViewController(), nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(WindowTest, AMenuGivesTheKeyboardBack)
{
    follow("MovieList");
    visible(QAccessible::Button, "Menu")
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    const auto isOpen = [&] { return visible(QAccessible::MenuItem, "By Genre") != nullptr; };
    ASSERT_TRUE(QTest::qWaitFor(isOpen));
    press(Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !isOpen(); }));
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Q);
    EXPECT_NE(visible(QAccessible::StaticText, "# Movies = 0 of 1"), nullptr);
}

TEST_F(WindowTest, ARefusedCharacterLeavesTheFieldAsItWas)
{
    follow("AddMovie");
    QAccessibleInterface* year = visible(QAccessible::EditableText, "Year Released");
    ASSERT_NE(year, nullptr);
    auto* input = qobject_cast<QQuickItem*>(year->object());
    input->forceActiveFocus();
    type("19x");
    EXPECT_EQ(input->property("text"), "19");
    input->setProperty("cursorPosition", 1);
    type("y8");
    EXPECT_EQ(input->property("text"), "189") << "the cursor stayed where it was";
    auto& screen = static_cast<AddMovieViewController&>(*navigation().topViewController());
    EXPECT_EQ(screen.YearReleasedTextField->text(), "189");
    screen.YearReleasedTextField->setText("1950");
    EXPECT_EQ(input->property("text"), "1950");
}

TEST_F(WindowTest, TypingIntoALongLineLosesNothingOfIt)
{
    follow("AddMovie");
    auto& name = *static_cast<AddMovieViewController&>(*navigation().topViewController()).MovieNameTextField;
    name.setText(QString(40'000, 'x'));
    qobject_cast<QQuickItem*>(visible(QAccessible::EditableText, "Movie Name")->object())->forceActiveFocus();
    press(Qt::Key_End);
    type("y");
    EXPECT_EQ(name.text(), QString(40'000, 'x') + 'y');
}

TEST_F(WindowTest, EachTabKeepsItsOwnStack)
{
    follow("TabBarController");
    ASSERT_NE(visible(QAccessible::Heading, "Genres"), nullptr);
    press(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return visible(QAccessible::Heading, "Comedy") != nullptr; }));
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_NE(visible(QAccessible::Heading, "Years Released"), nullptr);
    EXPECT_EQ(visible(QAccessible::Heading, "Comedy"), nullptr);
    press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_NE(visible(QAccessible::Heading, "Comedy"), nullptr);
    waitUntilStill();
    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return visible(QAccessible::Heading, "Genres") != nullptr; }));
    waitUntilStill();
    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return visible(QAccessible::Button, "Menu") != nullptr && navigation().depth() == 1; }));
}

TEST_F(WindowTest, PoppedScreensAndTheirLayoutsGoTogether)
{
    std::vector<QPointer<QObject>> left;
    QObject::connect(window->stage().root(), &NavigationStage::pushed, window.get(), [&](QQuickItem* layout) {
        left.emplace_back(layout);
        left.emplace_back(navigation().topViewController());
    });
    follow("ImportExport");
    follow("Import");
    ASSERT_EQ(left.size(), 4);
    navigation().topViewController()->performSegue("unwindToMenu");
    EXPECT_NE(left[2], nullptr) << "it is still seen leaving";
    const auto isGone = [](const QPointer<QObject>& object) { return object.isNull(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::all_of(left.begin(), left.end(), isGone); }));
    EXPECT_NE(visible(QAccessible::Button, "Menu"), nullptr);
}

TEST_F(WindowTest, ASearchShowsItsRowsWhereverTheListStood)
{
    for (int copy = 0; copy < 60; ++copy)
        given({.name = copy < 5 ? "Bear" : "Alien", .genre = "Comedy", .year = 1979});
    follow("MovieList");
    const auto rowsInSight = [&] {
        int rows = 0;
        forEachAccessible(*window, [&](QAccessibleInterface& seen) {
            const QAccessible::State state = seen.state();
            rows += seen.role() == QAccessible::ListItem && !state.invisible && !state.offscreen ? 1 : 0;
        });
        return rows;
    };
    press(Qt::Key_End);
    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsInSight() > 1; }));
    press(Qt::Key_F, Qt::ControlModifier);
    type("bear");
    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsInSight() == 5; })) << rowsInSight();
}

TEST_F(WindowTest, RowsAreReadFromTopToBottomWhereverTheListStands)
{
    for (int copy = 0; copy < 100; ++copy)
        given({.name = "Alien", .genre = "Comedy", .year = 1979});
    follow("MovieList");
    const auto isInOrder = [&] {
        QList<int> tops;
        forEachAccessible(*window, [&](QAccessibleInterface& seen) {
            if (seen.role() == QAccessible::ListItem && !seen.state().invisible)
                tops.append(seen.rect().top());
        });
        return tops.size() > 5 && std::is_sorted(tops.begin(), tops.end());
    };
    for (const auto key : {Qt::Key_PageDown, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageUp}) {
        press(key);
        EXPECT_TRUE(QTest::qWaitFor(isInOrder));
    }
}

// Each turn of the event loop leaves a layout half way in.
TEST_F(WindowTest, ShowsTheTopScreenHoweverFastTheStackTurns)
{
    const auto performAtOnce = [&](const QString& segue) {
        navigation().topViewController()->performSegue(segue);
        QTest::qWait(1);
    };
    performAtOnce("ImportExport");
    performAtOnce("Import");
    navigation().pop();
    performAtOnce("Import");
    navigation().pop();
    navigation().pop();
    waitUntilStill();
    EXPECT_TRUE(QTest::qWaitFor([&] { return visible(QAccessible::Button, "Menu") != nullptr; }));
    EXPECT_EQ(visible(QAccessible::Button, "Back"), nullptr);
    follow("MovieList");
    EXPECT_NE(visible(QAccessible::Heading, "Movie List"), nullptr);
    EXPECT_EQ(visible(QAccessible::Heading, "Marrowvale"), nullptr) << "what lies below is hidden";
}

TEST_F(WindowTest, FollowsTheDeviceIntoTheDark)
{
    const auto lightness = [&] {
        return window->grabWindow().pixelColor(4, window->height() - 4).lightness();
    };
    EXPECT_GT(lightness(), 200);
    device.setDark(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return lightness() < 80; }));
    follow("Print");
    EXPECT_LT(lightness(), 80) << "screens made later are dark too";
    device.setDark(false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return lightness() > 200; }));
}

} // namespace
