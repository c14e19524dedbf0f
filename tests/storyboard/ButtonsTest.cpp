#include "storyboard/ControlTrigger.h"
#include "tests/storyboard/SceneScreens.h"

#include <QSignalSpy>

namespace {

constexpr const char* signalsOfUse[] = {"2triggered()", "2menuAsked(UIMenu*)", "2chosen()"};

// A button as the user knows it; the item changes with its scene.
struct KnownButton
{
    QAccessible::Role role;
    QString name;
};

QString describe(const QQuickItem& item, const char* signal)
{
    return item.property("title").toString() + ' ' + item.property("action").toString() +
           item.property("segue").toString() + ' ' + (signal + 1);
}

void collect(QQuickItem* item, std::vector<QQuickItem*>& found)
{
    found.push_back(item);
    for (QQuickItem* child : item->childItems())
        collect(child, found);
}

// However a button is used, its scene hears the same, once. The scene's actions and segues are let go, so
// that it stays.
class EveryButton : public SceneScreensTest, public testing::WithParamInterface<std::string>
{
protected:
    void open()
    {
        window->resize(900, 1600);
        navigation().popToRoot();
        waitUntilStill();
        const QString screenClass = QString::fromStdString(GetParam());
        if (screenClass == "ViewController") {
            QMetaObject::invokeMethod(navigation().topViewController(), "HandleSelection");
            QTest::qWait(longerThanAFold);
        } else {
            openScene(screenClass);
        }
        opened = navigation().topViewController();
        heard.clear();
        std::vector<QQuickItem*> items;
        collect(window->contentItem(), items);
        for (QQuickItem* item : items)
            listenTo(*item);
    }

    void listenTo(QQuickItem& item)
    {
        qDeleteAll(item.findChildren<ControlTrigger*>(Qt::FindDirectChildrenOnly));
        for (const char* signal : signalsOfUse)
            if (item.metaObject()->indexOfSignal(signal + 1) >= 0)
                heard.emplace_back(describe(item, signal), std::make_unique<QSignalSpy>(&item, signal));
    }

    QStringList takeHeard()
    {
        QStringList all;
        for (auto& [name, spy] : heard) {
            for (qsizetype times = spy->count(); times > 0; --times)
                all.append(name);
            spy->clear();
        }
        return all;
    }

    std::vector<KnownButton> buttons()
    {
        static const QSet<int> roles{QAccessible::Button, QAccessible::CheckBox, QAccessible::PageTab};
        std::vector<KnownButton> found;
        forEachAccessible(*window, [&](QAccessibleInterface& seen) {
            const QRect place = seen.rect();
            if (roles.contains(seen.role()) && !seen.state().invisible && !seen.state().disabled &&
                (seen.text(QAccessible::Name) != "Back" || testsBack()) && !place.isEmpty() &&
                window->geometry().contains(place.center()))
                found.push_back({seen.role(), seen.text(QAccessible::Name)});
        });
        return found;
    }

    // It is the same in every scene but the first, and leaves it each time.
    static bool testsBack() { return GetParam() == "DefaultsViewController"; }

    QQuickItem& itemOf(const KnownButton& button)
    {
        return *qobject_cast<QQuickItem*>(visible(button.role, button.name)->object());
    }

    QPoint placeOf(const KnownButton& button)
    {
        const QQuickItem& item = itemOf(button);
        return item.mapToScene({item.width() / 2, item.height() / 2}).toPoint();
    }

    // What the scene hears of one use; it is opened again if that leaves or covers it.
    QStringList use(const KnownButton& button, const std::function<void()>& way)
    {
        way();
        QCoreApplication::processEvents();
        const QStringList all = takeHeard();
        if (visible(button.role, button.name) == nullptr || hasPopup() ||
            navigation().topViewController() != opened)
            open();
        return all;
    }

    bool hasPopup()
    {
        std::vector<QQuickItem*> items;
        collect(window->contentItem(), items);
        return std::any_of(items.begin(), items.end(), [](const QQuickItem* item) {
            return item->inherits("QQuickOverlay") && item->isVisible() && !item->childItems().isEmpty();
        });
    }

    void useByKey(const KnownButton& button, Qt::Key key)
    {
        itemOf(button).forceActiveFocus(Qt::TabFocusReason);
        press(key);
    }

    std::vector<std::pair<std::string, std::function<void()>>> otherWays(const KnownButton& button)
    {
        std::vector<std::pair<std::string, std::function<void()>>> ways{
            {"a finger",
             [&] {
                 QTest::touchEvent(window.get(), finger).press(0, placeOf(button));
                 QTest::touchEvent(window.get(), finger).release(0, placeOf(button));
             }},
            {"Space", [&] { useByKey(button, Qt::Key_Space); }},
            {"assistive technology",
             [&] {
                 visible(button.role, button.name)
                     ->actionInterface()
                     ->doAction(QAccessibleActionInterface::pressAction());
             }},
        };
        // Return turns no switch, as in other programs.
        if (button.role != QAccessible::CheckBox)
            ways.emplace_back("Return", [&] { useByKey(button, Qt::Key_Return); });
        return ways;
    }

    static constexpr int longerThanAFold = 400;
    QPointingDevice* finger = QTest::createTouchDevice();
    const UIViewController* opened = nullptr;
    std::vector<std::pair<QString, std::unique_ptr<QSignalSpy>>> heard;
};

TEST_P(EveryButton, SaysTheSameByFingerMouseKeyAndAssistiveTechnology)
{
    open();
    for (const KnownButton& button : buttons()) {
        const QStringList byMouse =
            use(button, [&] { QTest::mouseClick(window.get(), Qt::LeftButton, {}, placeOf(button)); });
        EXPECT_EQ(byMouse.size(), 1) << qPrintable(button.name) << ": " << qPrintable(byMouse.join(", "));
        for (const auto& [name, way] : otherWays(button))
            EXPECT_EQ(use(button, way).join(", ").toStdString(), byMouse.join(", ").toStdString())
                << qPrintable(button.name) << " by " << name;
    }
}

std::vector<std::string> allScenes()
{
    std::vector<std::string> classes;
    for (const SceneDescription& scene : sceneDescriptions())
        if (scene.layout != "TabBar")
            classes.push_back(scene.screenClass.toStdString());
    return classes;
}

INSTANTIATE_TEST_SUITE_P(Storyboard, EveryButton, testing::ValuesIn(allScenes()),
                         [](const auto& info) { return info.param; });

} // namespace
