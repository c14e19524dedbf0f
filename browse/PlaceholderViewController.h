#pragma once

#include "platform/toolkit/UILabel.h"
#include "platform/toolkit/UIViewController.h"

// A plain screen in the place of one that is not there yet; it says what will be there.
class PlaceholderViewController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UILabel* MessageLabel MEMBER MessageLabel CONSTANT FINAL)

public:
    PlaceholderViewController(const QString& title, const QString& message);

    UILabel* const MessageLabel = new UILabel(this);
};
