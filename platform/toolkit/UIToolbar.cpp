#include "platform/toolkit/UIToolbar.h"

void UIToolbar::setItems(std::vector<std::unique_ptr<UIBarButtonItem>> items)
{
    for (auto& item : items) {
        item->setParent(this);
        itemList.append(item.release());
    }
    Q_EMIT changed();
}
