#include "browse/ViewController.h"
#include "model/ReferenceRecords.h"
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

TEST_F(HomeTest, UnwindingToTheMenuPassesTheScreensBetweenAndClosesIt)
{
    PlainStoryboard storyboard;
    UINavigationController navigation(storyboard);
    navigation.push(std::make_unique<ViewController>());
    auto& home = static_cast<ViewController&>(*navigation.topViewController());
    home.HandleSelection();
    EXPECT_FALSE(home.MovieListButton->isHidden());
    home.performSegue("TabBarController");
    EXPECT_TRUE(navigation.isNavigationBarHidden());
    navigation.topViewController()->performSegue("Next");
    EXPECT_EQ(navigation.depth(), 3);
    navigation.topViewController()->performSegue("unwindToMenu");
    EXPECT_EQ(navigation.depth(), 1);
    EXPECT_TRUE(home.MovieListButton->isHidden());
    EXPECT_FALSE(navigation.isNavigationBarHidden());
}

} // namespace
