#include "feedback/RateShareTableViewController.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UINavigationController.h"
#include "platform/toolkit/UITableViewCell.h"
#include "tests/support/PlainStoryboard.h"
#include "tests/support/RecordingDevice.h"

#include <gtest/gtest.h>

namespace {

class RateShareTest : public testing::Test
{
protected:
    RateShareTest() { navigation.push(std::make_unique<RateShareTableViewController>()); }

    RateShareTableViewController& screen()
    {
        return static_cast<RateShareTableViewController&>(*navigation.topViewController());
    }

    QString alertAfter(int row)
    {
        screen().tableView()->select(row);
        auto* alert = qobject_cast<UIAlertController*>(screen().presentedViewController());
        if (alert == nullptr)
            return {};
        const QString text = alert->title() + "/" + alert->message();
        alert->choose(0);
        return text;
    }

    std::vector<ActivityItem> sharedBy(int row)
    {
        screen().tableView()->select(row);
        auto* sheet = qobject_cast<UIActivityViewController*>(screen().presentedViewController());
        const auto items = sheet == nullptr ? std::vector<ActivityItem>() : sheet->activityItems();
        screen().dismiss();
        return items;
    }

    RecordingDevice device;
    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
};

TEST_F(RateShareTest, OpensTheReviewAndTheWebPage)
{
    screen().tableView()->select(0);
    screen().tableView()->select(3);
    const QList<QUrl> expected{QUrl(screen().productURL.toString() + "?action=write-review"),
                               QUrl(screen().website)};
    EXPECT_EQ(device.addressOpenerTwin->opened, expected);
    screen().didSelectRowAt({5});
    EXPECT_EQ(screen().presentedViewController(), nullptr);
    EXPECT_EQ(screen().tableView()->rowCount(), 5);
    EXPECT_EQ(screen().cellForRowAt({4}).value<UITableViewCell>().textLabel.text, "Send Feedback");
}

TEST_F(RateShareTest, SharesWhereTextsCanBeSent)
{
    EXPECT_EQ(sharedBy(1), std::vector<ActivityItem>{screen().productURL});
    EXPECT_EQ(sharedBy(2), (std::vector<ActivityItem>{screen().instructions, screen().website}));
    device.setCanSendText(false);
    for (const int row : {1, 2})
        EXPECT_EQ(alertAfter(row), "Can't Send Text Message/Your Device is not able to send text messages.");
}

TEST_F(RateShareTest, FeedbackGoesByMail)
{
    screen().tableView()->select(4);
    ASSERT_EQ(device.mailTwin->composed.size(), 1U);
    const MailMessage& message = device.mailTwin->composed.front();
    EXPECT_EQ(message.recipients.size(), 1);
    EXPECT_EQ(message.subject, "");
    EXPECT_EQ(message.body, "<p>Enter your comments about Marrowvale app below: </p>");
    EXPECT_TRUE(message.isHtml);
    device.mailTwin->told(MFMailComposeResult::Sent);
    EXPECT_EQ(screen().presentedViewController(), nullptr);
    device.setCanSendMail(false);
    EXPECT_EQ(alertAfter(4), "Can't Send Email/Your Device is not able to send Email.");
}

} // namespace
