#include "platform/services/MFMailComposeViewController.h"
#include "platform/services/MFMessageComposeViewController.h"
#include "platform/toolkit/UIAlertController.h"
#include "tests/support/RecordingDevice.h"

#include <gtest/gtest.h>

namespace {

using MailResult = MFMailComposeResult;

class MailingScreen : public UIViewController, public MFMailComposeViewControllerDelegate
{
public:
    void mailComposeController(MFMailComposeViewController& /*controller*/,
                               MFMailComposeResult result) override
    {
        told.push_back(result);
        dismiss();
    }

    std::vector<MailResult> told;
};

class ComposersTest : public testing::Test
{
protected:
    MFMailComposeViewController& presentMail(MFMailComposeViewControllerDelegate* delegate)
    {
        auto composer = std::make_unique<MFMailComposeViewController>();
        composer->setMailComposeDelegate(delegate);
        composer->setToRecipients({"ann@example.org"});
        composer->setSubject("Update");
        composer->setMessageBody("<p>Hello</p>", true);
        composer->addAttachmentData("bytes", "csv", "Marrowvale.csv");
        composer->addAttachmentFile(QUrl("file:///tmp/GenreMovieList.pdf"));
        MFMailComposeViewController& shown = *composer;
        screen.present(std::move(composer));
        return shown;
    }

    // Its text, once it has been closed; empty: there is none.
    static QString closedAlert(const UIViewController& presenter)
    {
        auto* alert = qobject_cast<UIAlertController*>(presenter.presentedViewController());
        const QString said = alert == nullptr ? QString() : alert->title() + ": " + alert->message();
        if (alert != nullptr)
            alert->choose(0);
        return said;
    }

    RecordingDevice device;
    MailingScreen screen;
};

TEST_F(ComposersTest, TheComposerLeavesOnceItIsToldAndSaysWhenItFails)
{
    for (const bool hasDelegate : {true, false}) {
        for (const MailResult result : {MailResult::Sent, MailResult::Cancelled, MailResult::Failed}) {
            SCOPED_TRACE(int(result));
            screen.told.clear();
            const MFMailComposeViewController& composer = presentMail(hasDelegate ? &screen : nullptr);
            EXPECT_EQ(screen.presentedViewController(), &composer);
            device.mailTwin->told(result);
            EXPECT_EQ(closedAlert(composer), result == MailResult::Failed
                                                 ? "Mail: The message could not be handed to a mail program."
                                                 : "");
            EXPECT_EQ(screen.presentedViewController(), nullptr);
            EXPECT_EQ(screen.told, hasDelegate ? std::vector{result} : std::vector<MailResult>());
        }
    }
}

TEST_F(ComposersTest, AMessageIsHandedOverAtOnceOrSaysThatItWasNot)
{
    for (const bool composes : {true, false}) {
        device.textMessagesTwin->composes = composes;
        auto composer = std::make_unique<MFMessageComposeViewController>("Look: Alien");
        const MFMessageComposeViewController& shown = *composer;
        screen.present(std::move(composer));
        EXPECT_EQ(device.textMessagesTwin->composed.last(), "Look: Alien");
        EXPECT_EQ(closedAlert(shown),
                  composes ? "" : "Message: The text could not be handed to a program for messages.");
        EXPECT_EQ(screen.presentedViewController(), nullptr);
    }
}

} // namespace
