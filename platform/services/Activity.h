#pragma once

#include "platform/services/UIActivityViewController.h"

// One thing that the share sheet offers to do with its items.
struct Activity
{
    UIActivityViewController::ActivityType type;
    QString title;
    QString symbol;
    // Whether it is offered for them.
    bool (*applies)(const std::vector<ActivityItem>& items);
    void (*perform)(const std::vector<ActivityItem>& items, UIViewController& presenter);
};

// Every activity of the device, in the order in which the sheet shows them.
[[nodiscard]] const std::vector<Activity>& allActivities();
