#pragma once

#include "platform/toolkit/UITabBarController.h"

// The five group summaries side by side.
class GroupTabBarController : public UITabBarController
{
    Q_OBJECT

public:
    GroupTabBarController();
};
