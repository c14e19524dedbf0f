#pragma once

#include "platform/services/Mail.h"
#include "platform/toolkit/UIViewController.h"

class MFMailComposeViewController;

// A delegate takes the composer away itself.
class MFMailComposeViewControllerDelegate
{
public:
    virtual ~MFMailComposeViewControllerDelegate() = default;

    virtual void mailComposeController(MFMailComposeViewController& controller,
                                       MFMailComposeResult result) = 0;
};

// Opens a message in the device's mail program as soon as it is presented, and shows nothing itself, but an
// alert where that fails.
class MFMailComposeViewController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Presented by screens")

public:
    [[nodiscard]] static bool canSendMail();

    // Not owned; must outlive the composer. Null: the composer takes itself away.
    void setMailComposeDelegate(MFMailComposeViewControllerDelegate* value) { delegate = value; }

    void setToRecipients(const QStringList& recipients) { message.recipients = recipients; }
    void setSubject(const QString& subject) { message.subject = subject; }
    void setMessageBody(const QString& body, bool isHTML);
    void addAttachmentData(const QByteArray& data, const QString& mimeType, const QString& fileName);
    // A file as it stands; it must stay until the delegate is called. Empty `mimeType`: what its name says.
    void addAttachmentFile(const QUrl& file, const QString& mimeType = {});

    void viewWillAppear(bool animated) override;
    [[nodiscard]] bool isModal() const override { return false; }

private:
    void finish(MFMailComposeResult result);
    void tell(MFMailComposeResult result);

    MailMessage message;
    MFMailComposeViewControllerDelegate* delegate = nullptr;
};
