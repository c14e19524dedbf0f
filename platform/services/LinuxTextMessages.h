#pragma once

#include "platform/services/TextMessages.h"

// Text messages through the program that handles `sms` addresses; a device without telephony has its mail
// program do.
class LinuxTextMessages : public TextMessages
{
public:
    [[nodiscard]] bool canSendText() const override;
    bool compose(const QString& text) override;
};
