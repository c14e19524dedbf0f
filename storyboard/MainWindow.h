#pragma once

#include "platform/toolkit/UIWindowScene.h"

#include <QPointer>
#include <QQuickView>
#include <memory>

class SceneStage;
class UIAlertController;

// The one window: a stage that starts at the home menu, light or dark as the device says. Needs a current
// Device and an AppDelegate, both of which must outlive it.
class MainWindow : public QQuickView, public UIWindowScene
{
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    [[nodiscard]] SceneStage& stage() { return *sceneStage; }

    [[nodiscard]] ActivationState activationState() const override;
    [[nodiscard]] UINavigationController& navigationController() override;

protected:
    // Asks before the window closes while something is not saved.
    bool event(QEvent* event) override;

private:
    [[nodiscard]] bool mayClose();
    void askBeforeClosing(std::size_t changes);

    std::unique_ptr<SceneStage> sceneStage;
    QPointer<UIAlertController> question;
    bool closesAnyway = false;
};
