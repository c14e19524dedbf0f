#pragma once

class UIButton;

// The look of the buttons on the exchange screens, in the interface style of the moment.
void styleExchangeButton(UIButton& button);
