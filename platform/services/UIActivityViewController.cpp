#include "platform/services/UIActivityViewController.h"

#include "platform/services/Activity.h"
#include "platform/toolkit/UIBarButtonItem.h"

namespace {

constexpr int previewLength = 200;

} // namespace

UIActivityViewController::UIActivityViewController(std::vector<ActivityItem> items,
                                                   const std::vector<ActivityType>& excludedActivityTypes)
    : items(std::move(items))
{
    for (const Activity& activity : allActivities()) {
        const bool isExcluded = std::find(excludedActivityTypes.begin(), excludedActivityTypes.end(),
                                          activity.type) != excludedActivityTypes.end();
        if (!isExcluded && activity.applies(this->items))
            offered.push_back(&activity);
    }
}

UIActivityViewController::~UIActivityViewController() = default;

QStringList UIActivityViewController::activityTitles() const
{
    QStringList titles;
    for (const Activity* activity : offered)
        titles.append(activity->title);
    return titles;
}

QStringList UIActivityViewController::activitySymbols() const
{
    QStringList symbols;
    for (const Activity* activity : offered)
        symbols.append(activity->symbol);
    return symbols;
}

QString UIActivityViewController::preview() const
{
    for (const ActivityItem& item : items) {
        if (const auto* text = std::get_if<QString>(&item))
            return text->left(previewLength);
        if (const auto* url = std::get_if<QUrl>(&item))
            return url->isLocalFile() ? url->fileName() : url->toString();
    }
    return {};
}

void UIActivityViewController::choose(int index)
{
    UIViewController* presenter = presentingViewController();
    if (presenter == nullptr || index < 0 || index >= static_cast<int>(offered.size()))
        return;
    presenter->dismiss();
    offered[static_cast<std::size_t>(index)]->perform(items, *presenter);
}

void UIActivityViewController::cancel()
{
    if (presentingViewController() != nullptr)
        presentingViewController()->dismiss();
}
