#include "platform/toolkit/UISearchController.h"

void UISearchBar::setText(const QString& value)
{
    if (value == content)
        return;
    assign(content, value);
    Q_EMIT textDidChange();
}

void UISearchController::setSearchResultsUpdater(Updater updater)
{
    QObject::disconnect(&bar, &UISearchBar::textDidChange, this, nullptr);
    QObject::connect(&bar, &UISearchBar::textDidChange, this,
                     [this, update = std::move(updater)] { update(*this); });
}
