#include "platform/toolkit/UIMenu.h"

#include "platform/toolkit/UIButton.h"

UIMenu::UIMenu(QString title, std::vector<UIAction> actions)
    : titleText(std::move(title))
    , actions(std::move(actions))
{
}

QStringList UIMenu::actionTitles() const
{
    QStringList titles;
    for (const UIAction& action : actions)
        titles.append(action.title);
    return titles;
}

void UIMenu::choose(int index)
{
    if (index < 0 || index >= static_cast<int>(actions.size()))
        return;
    if (const auto handler = actions[static_cast<std::size_t>(index)].handler)
        handler();
}

void UIButton::setMenu(std::unique_ptr<UIMenu> value)
{
    delete menuObject;
    menuObject = value.release();
    if (menuObject != nullptr)
        menuObject->setParent(this);
    Q_EMIT changed();
}
