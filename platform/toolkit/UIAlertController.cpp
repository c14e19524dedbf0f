#include "platform/toolkit/UIAlertController.h"

#include "platform/toolkit/UIBarButtonItem.h"

UIAlertController::UIAlertController(const QString& title, QString message, std::vector<UIAction> actions)
    : messageText(std::move(message))
    , actions(std::move(actions))
{
    setTitle(title);
}

std::unique_ptr<UIAlertController> UIAlertController::withOk(const QString& title, const QString& message,
                                                             std::function<void()> whenClosed)
{
    std::vector<UIAction> actions{{.title = QStringLiteral("OK"), .handler = std::move(whenClosed)}};
    return std::make_unique<UIAlertController>(title, message, std::move(actions));
}

QStringList UIAlertController::actionTitles() const
{
    QStringList titles;
    for (const UIAction& action : actions)
        titles.append(action.title);
    return titles;
}

int UIAlertController::cancelIndex() const
{
    const auto cancels = [](const UIAction& action) { return action.style == UIAction::Style::Cancel; };
    const auto found = std::find_if(actions.begin(), actions.end(), cancels);
    if (found != actions.end())
        return static_cast<int>(found - actions.begin());
    return actions.size() == 1 ? 0 : -1;
}

void UIAlertController::choose(int index)
{
    if (presentingViewController() == nullptr || index < 0 || index >= static_cast<int>(actions.size()))
        return;
    presentingViewController()->dismiss();
    if (const auto handler = actions[static_cast<std::size_t>(index)].handler)
        handler();
}
