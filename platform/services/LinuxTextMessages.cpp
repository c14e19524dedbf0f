#include "platform/services/LinuxTextMessages.h"

#include "platform/services/AddressHandlers.h"
#include "platform/services/MailText.h"

bool LinuxTextMessages::canSendText() const
{
    return hasHandlerFor("sms") || hasHandlerFor("mailto");
}

bool LinuxTextMessages::compose(const QString& text)
{
    const QString scheme = hasHandlerFor("sms") ? QStringLiteral("sms") : QStringLiteral("mailto");
    return openInHandler(scheme + QStringLiteral(":?body=") + asParameter(text));
}
