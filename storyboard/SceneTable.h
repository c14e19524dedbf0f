#pragma once

#include "platform/toolkit/UIStoryboard.h"

#include <vector>

// A kind of screen and the layout that shows it.
struct SceneDescription
{
    QString screenClass;
    // The name of the QML file, without its ending.
    QString layout;
};

// A way out of a kind of screen.
struct SegueDescription
{
    QString screenClass;
    QString identifier;
    SegueTarget target;
};

[[nodiscard]] const std::vector<SceneDescription>& sceneDescriptions();
[[nodiscard]] const std::vector<SegueDescription>& segueDescriptions();
