#pragma once

#include "tour/SceneItems.h"

// Items within a QML type that may break a property, and why.
struct SceneException
{
    enum class Property { Contrast, Speech, Place };

    Property property;
    QString type;
    // Which of them; null: all.
    bool (*applies)(const QQuickItem& item);
    const char* reason;
};

inline const SceneException sceneExceptions[] = {
    {SceneException::Property::Contrast, "TableHeader", nullptr, "its red on light grey is prescribed"},
    {SceneException::Property::Contrast, "Wheel", [](const QQuickItem& row) { return row.opacity() < 1; },
     "rows fade with their distance from the chosen one"},
    {SceneException::Property::Place, "SwipeRow",
     [](const QQuickItem& item) { return SceneItems::isWithin(item, "SwipeRow", "isOpen"); },
     "a row is drawn aside by as much as its buttons need"},
};

[[nodiscard]] inline bool isExcepted(const QQuickItem& item, SceneException::Property property)
{
    return std::any_of(std::begin(sceneExceptions), std::end(sceneExceptions), [&](const auto& exception) {
        return exception.property == property && SceneItems::isWithin(item, exception.type) &&
               (exception.applies == nullptr || exception.applies(item));
    });
}
