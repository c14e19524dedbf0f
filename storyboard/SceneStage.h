#pragma once

#include "platform/services/InterfaceStyle.h"
#include "platform/toolkit/UINavigationController.h"
#include "storyboard/Storyboard.h"

#include <QHash>
#include <QQmlEngine>
#include <QQuickItem>

// Where layouts stand: makes the layout of each screen that the navigation controller shows, and tells the
// window's root layout what to show next. The first screen must be shown after the root layout is there.
class SceneStage : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(UINavigationController* navigation READ navigation CONSTANT FINAL)
    Q_PROPERTY(InterfaceStyle* interfaceStyle READ interfaceStyle CONSTANT FINAL)

public:
    // `engine` must outlive the stage.
    explicit SceneStage(QQmlEngine& engine, QObject* parent = nullptr);
    ~SceneStage() override;

    [[nodiscard]] UINavigationController* navigation() { return &navigationController; }

    // The current device's; it must outlive the stage.
    [[nodiscard]] static InterfaceStyle* interfaceStyle();

    // What shows a presented screen: "alert", "activity", or "" for what the desktop shows by itself.
    Q_INVOKABLE [[nodiscard]] QString presentation(UIViewController* controller) const;
    // The root layout shows the item of a popped screen no more: both are destroyed.
    Q_INVOKABLE void release(QQuickItem* item);

Q_SIGNALS:
    void pushed(QQuickItem* item);
    void popped(QQuickItem* item);

private:
    void loadLayout(UIViewController& controller);
    [[nodiscard]] QQuickItem* makeItem(UIViewController& controller);

    QQmlEngine& engine;
    Storyboard storyboard;
    UINavigationController navigationController;
    QHash<UIViewController*, QQuickItem*> items;
    QHash<QQuickItem*, std::shared_ptr<UIViewController>> leaving;
};
