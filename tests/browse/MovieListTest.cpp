#include "browse/MainListTableViewController.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UINavigationController.h"
#include "tests/support/Catalogue.h"
#include "tests/support/PlainStoryboard.h"

namespace {

class MovieListTest : public CatalogueTest
{
protected:
    MainListTableViewController& opened()
    {
        navigation.push(std::make_unique<MainListTableViewController>());
        return static_cast<MainListTableViewController&>(*navigation.topViewController());
    }

    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
};

TEST_F(MovieListTest, SharingNeedsADeviceThatSendsTexts)
{
    MainListTableViewController& list = opened();
    device.setCanSendText(false);
    list.shareButtonClicked();
    EXPECT_EQ(list.presentedViewController(), nullptr) << "the alert waits for its turn";
    queue.advance({});
    auto* alert = qobject_cast<UIAlertController*>(list.presentedViewController());
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->title(), "Can't Send Text Message");
    EXPECT_EQ(alert->message(), "Your device is not able to send text messages.");
}

TEST_F(MovieListTest, OlderSystemsShowTitlesAndAPlainMenuButton)
{
    device.systemVersion = 12;
    MainListTableViewController& list = opened();
    EXPECT_EQ(list.SortButton->image(), "");
    EXPECT_EQ(list.SortButton->title(), "Sort");
    EXPECT_EQ(list.rightBarButtonItem()->title(), "Menu");
    EXPECT_EQ(list.rightBarButtonItem()->menu(), nullptr);
    list.rightBarButtonItem()->tap();
    EXPECT_EQ(list.SortName, QString("MovieName"));
}

} // namespace
