#pragma once

#include "platform/services/Device.h"

// The composer of text messages.
class MFMessageComposeViewController
{
public:
    [[nodiscard]] static bool canSendText() { return Device::current().textMessages->canSendText(); }
};
