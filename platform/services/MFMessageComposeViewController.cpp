#include "platform/services/MFMessageComposeViewController.h"

#include "platform/services/Device.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UIBarButtonItem.h"

bool MFMessageComposeViewController::canSendText()
{
    return Device::current().textMessages->canSendText();
}

MFMessageComposeViewController::MFMessageComposeViewController(QString body)
    : body(std::move(body))
{
}

void MFMessageComposeViewController::viewWillAppear(bool /*animated*/)
{
    if (Device::current().textMessages->compose(body))
        takeAway();
    else
        present(UIAlertController::withOk(
            QStringLiteral("Message"),
            QStringLiteral("The text could not be handed to a program for messages."),
            [this] { takeAway(); }));
}

void MFMessageComposeViewController::takeAway()
{
    if (presentingViewController() != nullptr)
        presentingViewController()->dismiss();
}
