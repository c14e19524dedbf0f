#pragma once

#include "platform/toolkit/UIButton.h"
#include "platform/toolkit/UIViewController.h"

// Leads to the three reference lists; its buttons are the layout's segues.
class ReferenceListViewController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UIButton* GenreButton MEMBER GenreButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* RatingButton MEMBER RatingButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* ProviderButton MEMBER ProviderButton CONSTANT FINAL)

public:
    using UIViewController::UIViewController;

    void viewDidLoad() override;

    UIButton* const GenreButton = new UIButton(this);
    UIButton* const RatingButton = new UIButton(this);
    UIButton* const ProviderButton = new UIButton(this);
};
