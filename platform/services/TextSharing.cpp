#include "platform/services/TextSharing.h"

#include "platform/foundation/DispatchQueue.h"
#include "platform/services/MFMessageComposeViewController.h"
#include "platform/toolkit/UIAlertController.h"

#include <QPointer>

bool canSendTextsFrom(UIViewController& screen)
{
    if (MFMessageComposeViewController::canSendText())
        return true;
    DispatchQueue::main().async([shown = QPointer(&screen)] {
        if (shown)
            shown->present(
                UIAlertController::withOk(QStringLiteral("Can't Send Text Message"),
                                          QStringLiteral("Your device is not able to send text messages.")));
    });
    return false;
}

void shareWhereTextsCanBeSent(UIViewController& screen,
                              const std::function<std::vector<ActivityItem>()>& makeItems)
{
    if (canSendTextsFrom(screen))
        screen.present(std::make_unique<UIActivityViewController>(makeItems()));
}
