#include "tests/storyboard/SceneScreens.h"

namespace {

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
        if (const auto screen = makeScreen(scene.screenClass))
            for (int index = 0; index < screen->metaObject()->methodCount(); ++index)
                unwindActions.insert(screen->metaObject()->method(index).methodSignature());
    for (const SegueDescription& segue : segueDescriptions()) {
        const QByteArray signature = segue.target.unwindAction.toUtf8() + "(UIStoryboardSegue)";
        EXPECT_NE(segue.target.unwindAction.isEmpty(), unwindActions.contains(signature))
            << segue.identifier.toStdString();
    }
}

} // namespace
