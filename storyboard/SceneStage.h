#pragma once

#include "platform/services/InterfaceStyle.h"
#include "storyboard/NavigationStage.h"
#include "storyboard/Storyboard.h"

#include <QQmlEngine>

// The window's stage: makes the layout of each screen that is to be shown, in the window's own stack or in
// one that stands within a screen. The first screen must be shown after the root layout is there.
class SceneStage : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(NavigationStage* root READ root CONSTANT FINAL)
    Q_PROPERTY(InterfaceStyle* interfaceStyle READ interfaceStyle CONSTANT FINAL)

public:
    // `engine` must outlive the stage.
    explicit SceneStage(QQmlEngine& engine, QObject* parent = nullptr);
    ~SceneStage() override;

    [[nodiscard]] UINavigationController* navigation() { return &navigationController; }
    [[nodiscard]] NavigationStage* root() { return stageOf(&navigationController); }
    // The stage of a stack of screens, made at first use; it ends with the stack.
    Q_INVOKABLE [[nodiscard]] NavigationStage* stageOf(UINavigationController* controller);

    // The current device's; it must outlive the stage.
    [[nodiscard]] static InterfaceStyle* interfaceStyle();

    // What shows a presented screen: "alert", "activity", "camera", or "" for what the desktop shows by
    // itself.
    Q_INVOKABLE [[nodiscard]] QString presentation(UIViewController* controller) const;

private:
    void loadLayout(UIViewController& controller);
    [[nodiscard]] QQuickItem* makeItem(UIViewController& controller);

    QQmlEngine& engine;
    Storyboard storyboard;
    UINavigationController navigationController;
    QHash<UINavigationController*, NavigationStage*> stages;
};
