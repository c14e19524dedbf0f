#pragma once

#include "platform/toolkit/UINavigationController.h"

#include <QHash>
#include <QQuickItem>

// Where the layouts of one navigation controller's screens stand. Tells the layout that shows them what to
// show next, and keeps a popped screen with its layout for as long as it is seen going.
class NavigationStage : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(UINavigationController* navigation READ navigation CONSTANT FINAL)

public:
    explicit NavigationStage(UINavigationController& controller, QObject* parent = nullptr);
    // Destroys the layouts.
    ~NavigationStage() override;

    [[nodiscard]] UINavigationController* navigation() { return &controller; }

    // The layout of a screen that is about to be pushed; from here on it belongs to the stage.
    void add(UIViewController& screen, QQuickItem* layout);
    // The item of a popped screen is shown no more: both are destroyed.
    Q_INVOKABLE void release(QQuickItem* item);

Q_SIGNALS:
    void pushed(QQuickItem* item);
    void popped(QQuickItem* item);

private:
    UINavigationController& controller;
    QHash<UIViewController*, QQuickItem*> items;
    QHash<QQuickItem*, std::shared_ptr<UIViewController>> leaving;
};
