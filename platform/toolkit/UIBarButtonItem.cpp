#include "platform/toolkit/UIBarButtonItem.h"

UIBarButtonItem::UIBarButtonItem(UIAction action)
    : handler(std::move(action.handler))
{
    setTitle(action.title);
}

std::unique_ptr<UIBarButtonItem> UIBarButtonItem::makeFlexibleSpace()
{
    auto item = std::make_unique<UIBarButtonItem>();
    item->space = true;
    return item;
}

void UIBarButtonItem::tap()
{
    if (isEnabled() && handler)
        handler();
}
