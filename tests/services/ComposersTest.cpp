#include "platform/services/MFMailComposeViewController.h"
#include "platform/services/MFMessageComposeViewController.h"
#include "platform/services/UIPrintInteractionController.h"
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

TEST_F(ComposersTest, TheMailProgramGetsWhatTheScreenSaid)
{
    presentMail(&screen);
    ASSERT_EQ(device.mailTwin->composed.size(), 1U);
    const MailMessage& message = device.mailTwin->composed.front();
    EXPECT_EQ(message.recipients, QStringList("ann@example.org"));
    EXPECT_EQ(message.subject, "Update");
    EXPECT_EQ(message.body, "<p>Hello</p>");
    EXPECT_TRUE(message.isHtml);
    EXPECT_EQ(message.attachments[0].fileName, "Marrowvale.csv");
    EXPECT_EQ(message.attachments[0].mimeType, "csv");
    EXPECT_EQ(std::get<QByteArray>(message.attachments[0].content), "bytes");
    EXPECT_EQ(message.attachments[1].fileName, "GenreMovieList.pdf");
    EXPECT_EQ(std::get<QUrl>(message.attachments[1].content), QUrl("file:///tmp/GenreMovieList.pdf"));
}

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

TEST_F(ComposersTest, AnOutcomeAfterTheScreenIsGoneIsDropped)
{
    {
        MailingScreen gone;
        auto composer = std::make_unique<MFMailComposeViewController>();
        composer->setMailComposeDelegate(&gone);
        gone.present(std::move(composer));
    }
    device.mailTwin->told(MailResult::Failed);
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

TEST_F(ComposersTest, OneJobPrintsAtATime)
{
    auto& printing = UIPrintInteractionController::sharedPrintController();
    QStringList told;
    const auto present = [&](const QString& name) {
        printing.printFormatter = UISimpleTextPrintFormatter(NSAttributedString("text"));
        printing.printInfo.jobName = name;
        return printing.present(true, [&told](bool completed, const std::optional<NSError>& error) {
            told.append(error ? error->localizedDescription : completed ? "completed" : "cancelled");
        });
    };
    EXPECT_FALSE(printing.present(true, nullptr)) << "there is nothing to print";
    EXPECT_TRUE(present("first"));
    EXPECT_TRUE(printing.isPrinting());
    EXPECT_FALSE(present("second"));
    device.printerTwin->told(true, std::nullopt);
    EXPECT_FALSE(printing.isPrinting());
    EXPECT_TRUE(present("third"));
    printing.dismiss(true);
    EXPECT_TRUE(present("fourth"));
    device.printerTwin->told(false, NSError{"No paper", {}});
    EXPECT_EQ(told, QStringList({"completed", "cancelled", "No paper"}));
    EXPECT_EQ(device.printerTwin->printed.back().name, "fourth");
    EXPECT_TRUE(device.printerTwin->printed.back().showsNumberOfCopies);
}

} // namespace
