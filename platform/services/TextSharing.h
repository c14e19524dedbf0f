#pragma once

#include "platform/services/UIActivityViewController.h"

// Opens the share sheet on `screen` for what `makeItems` answers. On a device that can't send text messages
// an alert says so instead, once the main queue gets to it, and nothing is made.
void shareWhereTextsCanBeSent(UIViewController& screen,
                              const std::function<std::vector<ActivityItem>()>& makeItems);
