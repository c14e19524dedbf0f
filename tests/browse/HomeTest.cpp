#include "browse/ViewController.h"
#include "model/ReferenceRecords.h"
#include "model/SharedValues.h"
#include "platform/toolkit/UINavigationController.h"
#include "tests/support/Catalogue.h"
#include "tests/support/PlainStoryboard.h"

namespace {

class HomeTest : public CatalogueTest
{
protected:
    template <typename Entity>
    static QStringList stored(std::optional<QString> (Entity::*text)() const)
    {
        QStringList texts;
        for (const auto& record : context().fetch<Entity>(Entity::fetchRequest()).value())
            texts.append((record.get()->*text)().value_or("absent"));
        return texts;
    }

    // What a launch of the program shows on the console.
    static std::string consoleOfLaunch()
    {
        testing::internal::CaptureStdout();
        ViewController home;
        home.loadViewIfNeeded(nullptr);
        return testing::internal::GetCapturedStdout();
    }

    PlainStoryboard storyboard;
};

TEST_F(HomeTest, TheFirstLaunchAloneFillsTheReferenceLists)
{
    EXPECT_EQ(consoleOfLaunch(), "First Launch\n");
    const ViewController home;
    for (int launch = 0; launch < 2; ++launch) {
        EXPECT_EQ(stored(&Genres::genre), home.ListOfGenre);
        EXPECT_EQ(stored(&Ratings::rating), home.ListOfRating);
        EXPECT_EQ(stored(&Providers::name), home.ListOfProviders);
        EXPECT_EQ(consoleOfLaunch(), "Not First Launch\n");
    }
    EXPECT_EQ(home.ListOfGenre.size(), 22);
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(HomeTest, SeedingDoesNotLookForValuesThatAreThere)
{
    consoleOfLaunch();
    UserDefaults::standard().setBool(false, "AboutHasBeenLaunchedBeforeFlag");
    consoleOfLaunch();
    EXPECT_EQ(stored(&Ratings::rating).size(), 8);
}

TEST_F(HomeTest, TheMenuStartsClosedAtEveryShowingAndTogglesAsOne)
{
    UINavigationController navigation(storyboard);
    navigation.push(std::make_unique<ViewController>());
    auto& home = static_cast<ViewController&>(*navigation.topViewController());
    const auto hidden = [&] {
        std::vector<bool> states;
        for (const UIButton* button : home.MenuButton)
            states.push_back(button->isHidden());
        return states;
    };
    EXPECT_EQ(hidden(), std::vector<bool>(8, true));
    home.HandleSelection();
    EXPECT_EQ(hidden(), std::vector<bool>(8, false));
    EXPECT_EQ(home.MovieListButton->hidingDuration(), 0.3);

    shared().ReturnScreen = "GenreBreakdown";
    home.performSegue("TabBarController");
    EXPECT_TRUE(navigation.isNavigationBarHidden());
    navigation.topViewController()->performSegue("unwindToMenu");
    EXPECT_FALSE(navigation.isNavigationBarHidden());
    EXPECT_EQ(hidden(), std::vector<bool>(8, true));
    EXPECT_EQ(shared().ReturnScreen, QString("MainMenu"));
    home.HandleSelection();
    home.HandleSelection();
    EXPECT_EQ(hidden(), std::vector<bool>(8, true));
}

} // namespace
