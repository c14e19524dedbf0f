#include "platform/services/LinuxTextMessages.h"

#include "platform/services/AddressHandlers.h"

bool LinuxTextMessages::canSendText() const
{
    return hasHandlerFor("sms") || hasHandlerFor("mailto");
}
