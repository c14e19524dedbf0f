#pragma once

#include <QStringList>

class QObject;
class UIStoryboard;
class UIViewController;

// Joins a layout to its screen by name. A control of the layout may have
//   outlet       the screen's outlet that it shows,
//   action       the screen's action to call when the control emits `triggered`,
//   segue        the segue to follow when the control emits `triggered`,
//   beginAction  the action to call when editing of its outlet begins.
// Makes the connections and answers what doesn't fit: outlets that no control shows, actions that the screen
// and segues that the storyboard lacks. An empty list: all is well. `storyboard` must outlive the layout.
[[nodiscard]] QStringList bindLayout(QObject& layout, UIViewController& screen,
                                     const UIStoryboard& storyboard);
