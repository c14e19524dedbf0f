#include "platform/services/MFMailComposeViewController.h"

#include "platform/services/Device.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UIBarButtonItem.h"

#include <QPointer>

bool MFMailComposeViewController::canSendMail()
{
    return Device::current().mail->canSendMail();
}

void MFMailComposeViewController::setMessageBody(const QString& body, bool isHTML)
{
    message.body = body;
    message.isHtml = isHTML;
}

void MFMailComposeViewController::addAttachmentData(const QByteArray& data, const QString& mimeType,
                                                    const QString& fileName)
{
    message.attachments.push_back({fileName, mimeType, data});
}

void MFMailComposeViewController::addAttachmentFile(const QUrl& file, const QString& mimeType)
{
    message.attachments.push_back({file.fileName(), mimeType, file});
}

void MFMailComposeViewController::viewWillAppear(bool /*animated*/)
{
    const QPointer<MFMailComposeViewController> self(this);
    Device::current().mail->compose(message, [self](MFMailComposeResult result) {
        if (self)
            self->finish(result);
    });
}

void MFMailComposeViewController::finish(MFMailComposeResult result)
{
    if (result != MFMailComposeResult::Failed) {
        tell(result);
        return;
    }
    present(UIAlertController::withOk(QStringLiteral("Mail"),
                                      QStringLiteral("The message could not be handed to a mail program."),
                                      [this, result] { tell(result); }));
}

void MFMailComposeViewController::tell(MFMailComposeResult result)
{
    if (delegate != nullptr)
        delegate->mailComposeController(*this, result);
    else if (presentingViewController() != nullptr)
        presentingViewController()->dismiss();
}
