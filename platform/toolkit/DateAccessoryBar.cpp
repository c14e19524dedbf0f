#include "platform/toolkit/DateAccessoryBar.h"

std::unique_ptr<UIToolbar> makeDateAccessoryBar(UIAction first, UIAction last)
{
    auto bar = std::make_unique<UIToolbar>();
    bar->setTranslucent(true);
    bar->setTintColor(QColor::fromRgb(92, 216, 255));
    std::vector<std::unique_ptr<UIBarButtonItem>> items;
    items.push_back(std::make_unique<UIBarButtonItem>(std::move(first)));
    items.push_back(UIBarButtonItem::makeFlexibleSpace());
    items.push_back(std::make_unique<UIBarButtonItem>(std::move(last)));
    bar->setItems(std::move(items));
    return bar;
}
