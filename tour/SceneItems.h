#pragma once

#include <QQuickItem>
#include <QQuickWindow>

// A text or a control that can be seen.
struct SceneItem
{
    QQuickItem* item;
    // Where it is in the window, in pixels; for a text, its letters.
    QRectF place;
    // The part of `place` that no view scrolls away.
    QRectF part;
    // Part of it lies outside what shows it, and nothing scrolls it into sight.
    bool cutOff = false;
    bool isText = false;
};

// Finds them as they are drawn, whatever assistive technology is told.
namespace SceneItems {

// Everything in sight; while a popup is open, only what it holds.
[[nodiscard]] std::vector<SceneItem> inSight(const QQuickWindow& window);
// The text that is drawn: its own text, or what is typed into it.
[[nodiscard]] QString textOf(const QQuickItem& text);
// Whether the user presses it or types into it.
[[nodiscard]] bool isControl(QQuickItem& item);
// Whether `item` or one around it is of the QML type of that name, or of one made of it, and has the property
// set; null: any property.
[[nodiscard]] bool isWithin(const QQuickItem& item, const QString& type, const char* property = nullptr);
// Letters are drawn at fractions of pixels: so many don't count.
constexpr double tolerance = 1.5;
// Whether `inner` sticks out by no more than the tolerance.
[[nodiscard]] bool contains(const QRectF& outer, const QRectF& inner);
// For people: the text or name, the type and the place.
[[nodiscard]] QString describe(const SceneItem& seen);

} // namespace SceneItems
