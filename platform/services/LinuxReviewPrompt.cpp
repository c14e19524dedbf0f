#include "platform/services/LinuxReviewPrompt.h"

#include "platform/services/Device.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UIBarButtonItem.h"
#include "platform/toolkit/UINavigationController.h"
#include "platform/toolkit/UITextInput.h"
#include "platform/toolkit/UIWindowScene.h"

#include <QPointer>

namespace {

bool isBusy(const UIViewController& screen)
{
    const auto inputs = screen.findChildren<UITextInput*>();
    const bool isTyping = std::any_of(inputs.begin(), inputs.end(),
                                      [](const UITextInput* input) { return input->isEditing(); });
    return isTyping || screen.presentedViewController() != nullptr;
}

void openReviewPage(UIViewController& screen)
{
    if (!Device::current().addressOpener->open(reviewAddress))
        screen.present(UIAlertController::withOk(
            QStringLiteral("Write a Review"),
            QStringLiteral("No program of this device can open %1.").arg(reviewAddress.toString())));
}

std::unique_ptr<UIAlertController> makeQuestion(UIViewController& screen)
{
    const auto review = [asked = QPointer(&screen)] {
        if (asked)
            openReviewPage(*asked);
    };
    std::vector<UIAction> actions{
        {.title = QStringLiteral("Write a Review"), .handler = review},
        {.title = QStringLiteral("Not Now"), .style = UIAction::Style::Cancel},
    };
    return std::make_unique<UIAlertController>(QStringLiteral("Enjoying Marrowvale?"),
                                               QStringLiteral("A few words from you help others to find it."),
                                               std::move(actions));
}

} // namespace

void LinuxReviewPrompt::ask(UIWindowScene* scene)
{
    const auto& scenes = UIWindowScene::connectedScenes();
    if (scene == nullptr && !scenes.empty())
        scene = scenes.front();
    UIViewController* screen = scene != nullptr ? scene->navigationController().topViewController() : nullptr;
    if (screen != nullptr && !isBusy(*screen))
        screen->present(makeQuestion(*screen));
}
