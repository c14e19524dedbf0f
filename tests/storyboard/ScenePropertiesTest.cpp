#include "tour/SceneProperties.h"

#include "editing/MovieEditorViewController.h"
#include "exchange/ExportViewController.h"
#include "platform/foundation/UserDefaults.h"
#include "tests/storyboard/SceneScreens.h"

namespace {

class ScenePropertiesTest : public SceneScreensTest
{
public:
    void doPress(QAccessible::Role role, const QString& name)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return visible(role, name) != nullptr; })) << qPrintable(name);
        visible(role, name)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        // A popup that it opens takes less.
        constexpr int longerThanASlide = 450;
        QTest::qWait(longerThanASlide);
    }

    void edit(const QString& field)
    {
        ASSERT_NE(visible(QAccessible::EditableText, field), nullptr) << qPrintable(field);
        qobject_cast<QQuickItem*>(visible(QAccessible::EditableText, field)->object())->forceActiveFocus();
    }

    UIDatePicker& pickerOnTop()
    {
        return *static_cast<MovieEditorViewController&>(*navigation().topViewController())
                    .DateWatchedDatePicker;
    }

    void pickDateWith(const QString& setting)
    {
        UserDefaults::standard().setBool(true, setting);
        follow("AddMovie");
        edit("Date Watched");
    }

    using SceneScreensTest::openScene;
    using SceneTest::device;
    using SceneTest::follow;
    using SceneTest::navigation;
    using SceneTest::press;
    using SceneTest::queue;
    using SceneTest::type;

protected:
    // As a user of that language starts the program.
    void startIn(const QLocale& locale)
    {
        window.reset();
        QLocale::setDefault(locale);
        window = std::make_unique<MainWindow>();
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    void TearDown() override
    {
        SceneTest::TearDown();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    void turnDark(bool dark)
    {
        device.setDark(dark);
        QImage before;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            QTest::qWait(20);
            const QImage now = window->grabWindow();
            return std::exchange(before, now) == now;
        }));
    }
};

const QLocale american(QLocale::English, QLocale::UnitedStates);
// Weeks begin on Monday, months and days are long.
const QLocale german(QLocale::German, QLocale::Germany);
// Weeks begin on Saturday, the script runs from right to left, the calendar and the digits are others.
const QLocale persian(QLocale::Persian, QLocale::Iran);

// Locales differ in texts and places, not in colours.
const struct
{
    QLocale locale;
    std::vector<bool> darkness;
} looks[] = {{american, {false, true}}, {german, {false}}, {persian, {true}}};
constexpr QSize sizes[] = {{360, 640}, {820, 1180}, {1440, 900}};

// A state of the program, and how to get there from the home menu.
struct State
{
    std::string name;
    std::function<void(ScenePropertiesTest&)> open;
};

void PrintTo(const State& state, std::ostream* out)
{
    *out << state.name;
}

std::vector<State> allStates()
{
    using Test = ScenePropertiesTest;
    std::vector<State> states{
        {"MenuFoldedOut", [](Test& test) { test.doPress(QAccessible::Button, "Menu"); }},
        {"Alert",
         [](Test& test) {
             test.follow("AddMovie");
             test.doPress(QAccessible::Button, "Save");
         }},
        {"SortMenu",
         [](Test& test) {
             test.follow("MovieList");
             test.doPress(QAccessible::Button, "Menu");
         }},
        {"ShareSheet",
         [](Test& test) {
             test.follow("MovieList");
             test.doPress(QAccessible::Button, "Share");
         }},
        {"Camera",
         [](Test& test) {
             test.device.setCameraAvailable(true);
             test.follow("AddMovie");
             test.doPress(QAccessible::Button, "Camera");
         }},
        {"GenreWheel",
         [](Test& test) {
             test.follow("AddMovie");
             test.edit("Genre");
         }},
        {"DateWheels", [](Test& test) { test.pickDateWith("UseDateWheel"); }},
        {"InlineDate", [](Test& test) { test.pickDateWith("UseDateInline"); }},
        {"CompactDate",
         [](Test& test) {
             test.pickDateWith("UseDateCompact");
             test.doPress(QAccessible::Button, test.pickerOnTop().dateText());
         }},
        {"UncoveredRow",
         [](Test& test) {
             test.follow("MovieList");
             test.press(Qt::Key_Delete);
         }},
        {"FruitlessSearch",
         [](Test& test) {
             test.follow("MovieList");
             test.press(Qt::Key_F, Qt::ControlModifier);
             test.type("q");
         }},
        {"ExportMade",
         [](Test& test) {
             test.follow("ImportExport");
             test.follow("Export");
             static_cast<ExportViewController&>(*test.navigation().topViewController()).CreateUpdateFile();
             test.queue.advance(std::chrono::milliseconds(999));
         }},
    };
    for (const SceneDescription& scene : sceneDescriptions())
        states.push_back(
            {scene.screenClass.toStdString(), [&](Test& test) { test.openScene(scene.screenClass); }});
    return states;
}

class EveryScene : public ScenePropertiesTest, public testing::WithParamInterface<State>
{
};

TEST_P(EveryScene, CanBeReadHeardAndReachedInEveryLook)
{
    given({.name = QString("An Uncommonly Long Title ").repeated(6), .genre = "Drama", .year = 2001});
    given({.name = QString(), .genre = QString(), .rating = "R", .year = 2001, .runTime = 90});
    for (const auto& [locale, darkness] : looks) {
        startIn(locale);
        GetParam().open(*this);
        for (const bool dark : darkness) {
            turnDark(dark);
            for (const QSize& size : sizes) {
                window->resize(size);
                QTest::qWait(1);
                const QStringList faults = SceneProperties::faultsIn(*window);
                EXPECT_TRUE(faults.isEmpty())
                    << qPrintable(locale.name()) << ", " << size.width() << " wide, "
                    << (dark ? "dark" : "light") << qPrintable(":\n  " + faults.join("\n  "));
            }
        }
    }
    const QStringList unmarked = SceneProperties::unmarkedControls(*window);
    EXPECT_TRUE(unmarked.isEmpty()) << qPrintable(unmarked.join("\n  "));
}

TEST_F(ScenePropertiesTest, DatePanelsShowEveryMonthAndEachDayUnderItsWeekday)
{
    for (const QLocale& locale : {american, german, persian}) {
        startIn(locale);
        pickDateWith("UseDateInline");
        pickerOnTop().pick(2026, 1, 1);
        const auto middleOf = [&](QAccessible::Role role, const QString& name) {
            const auto* seen = visible(role, name);
            return seen != nullptr ? seen->rect().center().x() : -1;
        };
        for (int month = 1; month <= 12; ++month) {
            const QDate first(2026, month, 1);
            const QString title = locale.standaloneMonthName(month) + " 2026";
            ASSERT_TRUE(QTest::qWaitFor([&] { return visible(QAccessible::StaticText, title) != nullptr; }))
                << qPrintable(title);
            const QString weekday = locale.standaloneDayName(first.dayOfWeek(), QLocale::ShortFormat);
            ASSERT_TRUE(QTest::qWaitFor([&] {
                return std::abs(middleOf(QAccessible::Button, "1") -
                                middleOf(QAccessible::StaticText, weekday)) <= 1;
            })) << qPrintable(title);
            EXPECT_EQ(visible(QAccessible::Button, "31") != nullptr, first.daysInMonth() == 31);
            doPress(QAccessible::Button, "Next Month");
        }
        navigation().popToRoot();
        waitUntilStill();
        UserDefaults::standard().setBool(false, "UseDateInline");
        pickDateWith("UseDateWheel");
        for (const int month : {1, 6, 12}) {
            pickerOnTop().pick(2026, month, 1);
            const QString name = locale.standaloneMonthName(month);
            EXPECT_TRUE(QTest::qWaitFor([&] { return visible(QAccessible::ListItem, name) != nullptr; }))
                << qPrintable(name);
        }
        UserDefaults::standard().setBool(false, "UseDateWheel");
    }
}

INSTANTIATE_TEST_SUITE_P(Storyboard, EveryScene, testing::ValuesIn(allStates()),
                         [](const auto& info) { return info.param.name; });

} // namespace
