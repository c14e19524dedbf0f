#pragma once

#include "platform/toolkit/UIButton.h"
#include "platform/toolkit/UIViewController.h"

// Leads to the two screens of the exchange file; its buttons are the layout's segues.
class ImportExportViewController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UIButton* ExportMoviesButton MEMBER ExportMoviesButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* ImportMoviesButton MEMBER ImportMoviesButton CONSTANT FINAL)

public:
    using UIViewController::UIViewController;

    void viewDidLoad() override;

    UIButton* const ExportMoviesButton = new UIButton(this);
    UIButton* const ImportMoviesButton = new UIButton(this);
};
