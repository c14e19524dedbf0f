#include "exchange/ExchangeButton.h"

#include "platform/services/UITraitCollection.h"
#include "platform/toolkit/UIButton.h"

void styleExchangeButton(UIButton& button)
{
    const bool dark = currentUserInterfaceStyle() == UIUserInterfaceStyle::Dark;
    button.setLayer({.cornerRadius = 10, .borderWidth = 1, .borderColor = dark ? Qt::white : Qt::black});
    button.setDisabledTitleColor(Qt::gray);
}
