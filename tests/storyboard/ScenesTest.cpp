#include "platform/toolkit/UITabBarController.h"
#include "tests/storyboard/SceneTest.h"

// How a test's parameter is written.
void PrintTo(const SceneDescription& scene, std::ostream* out)
{
    *out << scene.screenClass.toStdString();
}

namespace {

// The screen of that class, as the first segue that leads there makes it.
std::unique_ptr<UIViewController> made(const QString& screenClass)
{
    const auto isWanted = [&](const UIViewController& screen) {
        return QString(screen.metaObject()->className()) == screenClass;
    };
    for (const SegueDescription& segue : segueDescriptions())
        if (segue.target.makeDestination)
            if (auto screen = segue.target.makeDestination(); isWanted(*screen))
                return screen;
    auto first = Storyboard::makeInitialViewController();
    return isWanted(*first) ? std::move(first) : nullptr;
}

// Controls in sight that assistive technology could not call by a name.
QStringList namelessControls(QWindow& window)
{
    static const QSet<int> roles{QAccessible::Button,     QAccessible::EditableText, QAccessible::ListItem,
                                 QAccessible::StaticText, QAccessible::Heading,      QAccessible::Graphic,
                                 QAccessible::CheckBox};
    QStringList nameless;
    forEachAccessible(window, [&](QAccessibleInterface& seen) {
        if (roles.contains(seen.role()) && !seen.state().invisible && seen.text(QAccessible::Name).isEmpty())
            nameless.append(QString(seen.object()->metaObject()->className()) + " at " +
                            QDebug::toString(seen.rect()));
    });
    return nameless;
}

int controlsIn(QWindow& window)
{
    int count = 0;
    forEachAccessible(window, [&](QAccessibleInterface& seen) { count += seen.state().invisible ? 0 : 1; });
    return count;
}

class EveryScene : public SceneTest, public testing::WithParamInterface<SceneDescription>
{
protected:
    // Answers whether there is such a tab.
    bool chooseTabOf(const QString& screenClass)
    {
        auto& tabs = static_cast<UITabBarController&>(*navigation().topViewController());
        for (int index = 0; index < tabs.tabCount(); ++index) {
            tabs.setSelectedIndex(index);
            if (tabs.stack(index)->topViewController()->metaObject()->className() == screenClass)
                return true;
        }
        return false;
    }
};

TEST_P(EveryScene, LoadsQuietlyAndNamesItsControls)
{
    if (auto screen = made(GetParam().screenClass)) {
        navigation().push(std::move(screen));
    } else {
        follow("TabBarController");
        ASSERT_TRUE(chooseTabOf(GetParam().screenClass)) << "no segue and no tab leads there";
    }
    waitUntilStill();
    device.setDark(true);
    QTest::qWait(1);
    EXPECT_GT(controlsIn(*window), 4);
    EXPECT_EQ(namelessControls(*window), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Storyboard, EveryScene, testing::ValuesIn(sceneDescriptions()),
                         [](const auto& info) { return info.param.screenClass.toStdString(); });

TEST(SceneTableTest, EverySegueLeadsFromAndToScreensThatAreThere)
{
    QSet<QString> scenes;
    for (const SceneDescription& scene : sceneDescriptions())
        scenes.insert(scene.screenClass);
    EXPECT_EQ(scenes.size(), static_cast<qsizetype>(sceneDescriptions().size()));

    QSet<std::pair<QString, QString>> known;
    for (const SegueDescription& segue : segueDescriptions()) {
        EXPECT_TRUE(scenes.contains(segue.screenClass)) << segue.screenClass.toStdString();
        EXPECT_FALSE(known.contains({segue.screenClass, segue.identifier})) << segue.identifier.toStdString();
        known.insert({segue.screenClass, segue.identifier});
    }
}

class SceneTableWithCatalogueTest : public CatalogueTest
{
};

TEST_F(SceneTableWithCatalogueTest, EveryDestinationHasALayoutAndEveryUnwindActionAScreen)
{
    QSet<QByteArray> unwindActions;
    for (const SceneDescription& scene : sceneDescriptions())
        if (const auto screen = made(scene.screenClass))
            for (int index = 0; index < screen->metaObject()->methodCount(); ++index)
                unwindActions.insert(screen->metaObject()->method(index).methodSignature());
    for (const SegueDescription& segue : segueDescriptions()) {
        const QByteArray signature = segue.target.unwindAction.toUtf8() + "(UIStoryboardSegue)";
        EXPECT_NE(segue.target.unwindAction.isEmpty(), unwindActions.contains(signature))
            << segue.identifier.toStdString();
    }
}

} // namespace
