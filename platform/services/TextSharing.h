#pragma once

#include "platform/services/UIActivityViewController.h"

// Whether the device can send text messages. Where it can't, an alert on `screen` says so once the main queue
// gets to it.
[[nodiscard]] bool canSendTextsFrom(UIViewController& screen);

// Opens the share sheet on `screen` for what `makeItems` answers, if texts can be sent from there.
void shareWhereTextsCanBeSent(UIViewController& screen,
                              const std::function<std::vector<ActivityItem>()>& makeItems);
