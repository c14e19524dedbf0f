#include "browse/MainListTableViewController.h"
#include "tests/storyboard/SceneTest.h"
#include "tests/storyboard/Touches.h"

namespace {

constexpr int movieCount = 30;
constexpr QPoint nowhere;

// A gesture that begins in the middle of the third row, and the expected result.
struct RowGesture
{
    std::string name;
    Touches touches;
    int movies = movieCount;
    bool showsDelete = false;
    // The movie whose editor is open; empty: the list is.
    QString opened = {};
};

void PrintTo(const RowGesture& gesture, std::ostream* out)
{
    *out << gesture.name;
}

// The movies "01" to "30", last name first: "28" is in the third row.
class RowsTest : public SceneTest
{
protected:
    void SetUp() override
    {
        SceneTest::SetUp();
        context().deleteObject(storedMovies().front());
        for (int number = 1; number <= movieCount; ++number)
            given({.name = QString("%1").arg(number, 2, 10, QChar('0'))});
        follow("MovieList");
    }

    MainListTableViewController& list()
    {
        return static_cast<MainListTableViewController&>(*navigation().topViewController());
    }

    QPoint middleOfThirdRow()
    {
        const auto* row = visible(QAccessible::List, "Movies")->object();
        const auto* view = qobject_cast<const QQuickItem*>(row);
        return view->mapToScene(QPointF(view->width() / 2, 8 + 2 * 66 + 30)).toPoint();
    }

    bool showsDelete() { return visible(QAccessible::Button, "delete") != nullptr; }
};

class RowTouchTest : public RowsTest, public testing::WithParamInterface<RowGesture>
{
};

TEST_P(RowTouchTest, EndsOnTheRecordThatItBeganOn)
{
    MainListTableViewController& screen = list();
    Fingers(*window, middleOfThirdRow()).play(GetParam().touches, [&] { screen.SortMoviesTapped(); });
    QTest::qWait(400);
    EXPECT_EQ(storedMovies().size(), static_cast<std::size_t>(GetParam().movies));
    const bool isOpened = navigation().depth() > 2;
    EXPECT_EQ(isOpened ? shared().CurrentMovie.movieName : QString(), GetParam().opened);
    EXPECT_EQ(!isOpened && showsDelete(), GetParam().showsDelete);
    for (const auto& movie : storedMovies())
        EXPECT_TRUE(GetParam().movies == movieCount || movie->movieName() != QString("28"));
}

const QPoint aside(-110, 0);
const QPoint farAside(-300, 0);

INSTANTIATE_TEST_SUITE_P(
    Rows, RowTouchTest,
    testing::Values(
        RowGesture{"Tap", {{0, 0, nowhere, down}, {40, 0, nowhere, up}}, movieCount, false, "28"},
        RowGesture{"LongPress", {{0, 0, nowhere, down}, {1000, 0, nowhere, up}}, movieCount, true},
        RowGesture{"SwipeLeft",
                   joined({{{0, 0, nowhere, down}}, stroke(0, 0, nowhere, aside), {{110, 0, aside, up}}}),
                   movieCount, true},
        RowGesture{"SwipeLeftAndBack", joined({{{0, 0, nowhere, down}},
                                               stroke(0, 0, nowhere, aside),
                                               stroke(0, 100, aside, nowhere),
                                               {{210, 0, nowhere, up}}})},
        RowGesture{"FullSwipe",
                   joined({{{0, 0, {100, 0}, down}},
                           stroke(0, 0, {100, 0}, farAside + QPoint(120, 0)),
                           {{110, 0, farAside + QPoint(120, 0), up}}}),
                   movieCount - 1},
        RowGesture{
            "DragOutOfTheWindow",
            joined({{{0, 0, nowhere, down}}, stroke(0, 0, nowhere, {0, -600}), {{110, 0, {0, -600}, up}}})},
        RowGesture{"SecondFingerOnAnotherRow",
                   joined({{{0, 0, nowhere, down}},
                           stroke(0, 0, nowhere, aside),
                           {{65, 1, {0, 132}, down}, {95, 1, {0, 132}, up}, {110, 0, aside, up}}})},
        RowGesture{"ThreeFingers",
                   joined({{{0, 0, nowhere, down}, {0, 1, {0, 66}, down}, {0, 2, {0, 132}, down}},
                           stroke(0, 0, nowhere, {0, -50}),
                           stroke(1, 0, {0, 66}, {0, 16}),
                           stroke(2, 0, {0, 132}, {0, 82}),
                           {{110, 0, {0, -50}, up}, {110, 1, {0, 16}, up}, {110, 2, {0, 82}, up}}})},
        RowGesture{"ReloadUnderATap",
                   {{0, 0, nowhere, down}, {20, 0, nowhere, reload}, {40, 0, nowhere, up}}},
        RowGesture{"ReloadUnderALongPress",
                   {{0, 0, nowhere, down}, {20, 0, nowhere, reload}, {1000, 0, nowhere, up}}},
        RowGesture{"ReloadUnderASwipe",
                   joined({{{0, 0, {100, 0}, down}},
                           stroke(0, 0, {100, 0}, farAside + QPoint(120, 0)),
                           {{55, 0, nowhere, reload}, {110, 0, farAside + QPoint(120, 0), up}}})},
        RowGesture{"ReloadUnderAnOpenRow", joined({{{0, 0, nowhere, down}},
                                                   stroke(0, 0, nowhere, aside),
                                                   {{110, 0, aside, up}, {500, 0, nowhere, reload}}})},
        RowGesture{"ReloadUnderAPressOnDelete", joined({{{0, 0, nowhere, down}},
                                                        stroke(0, 0, nowhere, aside),
                                                        {{110, 0, aside, up},
                                                         {500, 0, {140, 0}, down},
                                                         {520, 0, nowhere, reload},
                                                         {540, 0, {140, 0}, up}}})}),
    [](const auto& info) { return info.param.name; });

using RowKeyTest = RowsTest;

TEST_F(RowKeyTest, AKeyPressedAgainAfterAReloadDeletesNothing)
{
    press(Qt::Key_Down);
    press(Qt::Key_Delete);
    EXPECT_TRUE(QTest::qWaitFor([&] { return showsDelete(); }));
    list().SortMoviesTapped();
    EXPECT_FALSE(showsDelete());
    press(Qt::Key_Delete);
    EXPECT_EQ(storedMovies().size(), movieCount);
}

// Assistive technology may hold on to a button that is gone from the screen.
TEST_F(RowKeyTest, AButtonUncoveredBeforeAReloadDeletesNothing)
{
    press(Qt::Key_Down);
    press(Qt::Key_Delete);
    EXPECT_TRUE(QTest::qWaitFor([&] { return showsDelete(); }));
    QAccessibleActionInterface* button = visible(QAccessible::Button, "delete")->actionInterface();
    list().SortMoviesTapped();
    button->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(storedMovies().size(), movieCount);
}

} // namespace
