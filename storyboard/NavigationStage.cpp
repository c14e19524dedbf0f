#include "storyboard/NavigationStage.h"

#include "platform/toolkit/UIBarButtonItem.h"

NavigationStage::NavigationStage(UINavigationController& controller, QObject* parent)
    : QObject(parent)
    , controller(controller)
{
    connect(&controller, &UINavigationController::pushed, this,
            [this](UIViewController* screen) { Q_EMIT pushed(items.value(screen)); });
    connect(&controller, &UINavigationController::popped, this,
            [this](const std::shared_ptr<UIViewController>& screen) {
                QQuickItem* item = items.take(screen.get());
                leaving.insert(item, screen);
                Q_EMIT popped(item);
            });
}

NavigationStage::~NavigationStage()
{
    qDeleteAll(leaving.keys());
    qDeleteAll(items);
}

void NavigationStage::add(UIViewController& screen, QQuickItem* layout)
{
    items.insert(&screen, layout);
}

void NavigationStage::release(QQuickItem* item)
{
    if (!leaving.contains(item))
        return;
    // The layout goes first: its bindings read the screen.
    delete item;
    leaving.remove(item);
}
