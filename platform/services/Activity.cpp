#include "platform/services/Activity.h"

#include "platform/services/ActivityActions.h"
#include "platform/services/MFMailComposeViewController.h"
#include "platform/services/MFMessageComposeViewController.h"

namespace {

bool always(const ActivityItems& /*items*/)
{
    return true;
}

bool canMail(const ActivityItems& /*items*/)
{
    return MFMailComposeViewController::canSendMail();
}

bool canMessage(const ActivityItems& items)
{
    return hasWords(items) && MFMessageComposeViewController::canSendText();
}

bool hasAddresses(const ActivityItems& items)
{
    return !addressesOf(items).isEmpty();
}

} // namespace

const std::vector<Activity>& allActivities()
{
    using Type = UIActivityViewController::ActivityType;
    static const std::vector<Activity> table{
        {Type::CopyToPasteboard, QStringLiteral("Copy"), QStringLiteral("doc.on.doc"), always,
         copyToPasteboard},
        {Type::SaveToFiles, QStringLiteral("Save to Files"), QStringLiteral("folder.badge.plus"), always,
         saveToFiles},
        {Type::Mail, QStringLiteral("Mail"), QStringLiteral("envelope"), canMail, sendByMail},
        {Type::Message, QStringLiteral("Message"), QStringLiteral("message"), canMessage, sendAsMessage},
        {Type::Print, QStringLiteral("Print"), QStringLiteral("printer"), isPrintable, printOnPaper},
        {Type::OpenWith, QStringLiteral("Open With"), QStringLiteral("arrow.up.forward.app"), hasAddresses,
         openElsewhere},
    };
    return table;
}
