#pragma once

#include <QQuickWindow>
#include <QStringList>

// Properties that hold for every scene in every look. Each function returns a sentence for each fault; faults
// that are known and accepted are listed, with their reasons, in SceneExceptions.h. The caller must let the
// window come to rest first.
namespace SceneProperties {

// The contrast of each text against the ground that is painted under it is at least 4.5:1. Controls that are
// switched off are excepted. Draws the window twice.
[[nodiscard]] QStringList faintTexts(QQuickWindow& window);
// Each text is itself accessible by what it says, or an item beside it is; a text on a control is part of the
// control's name or content. Each control has a name.
[[nodiscard]] QStringList unspokenItems(const QQuickWindow& window);
// Nothing lies outside the window, overlaps what isn't around it, sticks out of its control or is cut off
// without an ellipsis.
[[nodiscard]] QStringList displacedItems(const QQuickWindow& window);
// A disabled control looks different from an enabled one. Switches each control that has an outlet over and
// back, and draws the window twice.
[[nodiscard]] QStringList unmarkedControls(QQuickWindow& window);

// The first three: they leave the program as it is.
[[nodiscard]] QStringList faultsIn(QQuickWindow& window);

} // namespace SceneProperties
