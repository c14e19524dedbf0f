#pragma once

#include "platform/toolkit/UIViewController.h"

// Opens a text in the device's program for messages as soon as it is presented, then takes itself away. It
// shows nothing itself, but an alert where that fails.
class MFMessageComposeViewController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Presented by screens")

public:
    [[nodiscard]] static bool canSendText();

    explicit MFMessageComposeViewController(QString body);

    void viewWillAppear(bool animated) override;
    [[nodiscard]] bool isModal() const override { return false; }

private:
    void takeAway();

    QString body;
};
