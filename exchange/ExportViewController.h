#pragma once

#include "exchange/ExchangeBuilder.h"
#include "platform/foundation/NSProgress.h"
#include "platform/services/MFMailComposeViewController.h"
#include "platform/toolkit/UIActivityIndicatorView.h"
#include "platform/toolkit/UIButton.h"
#include "platform/toolkit/UIProgressView.h"
#include "platform/toolkit/UITextView.h"

// Makes the exchange file of the whole catalogue, once a visit, then saves or mails it as often as wanted.
class ExportViewController : public UIViewController, public MFMailComposeViewControllerDelegate
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UIButton* ExportButton MEMBER ExportButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* SaveButton MEMBER SaveButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* EmailButton MEMBER EmailButton CONSTANT FINAL)
    Q_PROPERTY(UITextView* ExportTextView MEMBER ExportTextView CONSTANT FINAL)
    Q_PROPERTY(UIProgressView* ProgressView MEMBER ProgressView CONSTANT FINAL)
    Q_PROPERTY(UITextView* HelpTextView MEMBER HelpTextView CONSTANT FINAL)
    Q_PROPERTY(UIActivityIndicatorView* activityIndicator MEMBER activityIndicator CONSTANT FINAL)

public:
    using UIViewController::UIViewController;

    void viewDidLoad() override;

    // Makes the file's text. A cover that is no picture ends the program.
    Q_INVOKABLE void CreateUpdateFile();
    // Writes the text as it was made on another thread, then offers the file. Does nothing while a file is
    // being made or written.
    Q_INVOKABLE void SaveToFiles();
    // Does the same with the text as it is shown, perhaps edited, and mails the file. Neither reports that
    // writing fails.
    Q_INVOKABLE void WriteTextFile();
    void mailComposeController(MFMailComposeViewController& controller, MFMailComposeResult result) override;

    UIButton* const ExportButton = new UIButton(this);
    UIButton* const SaveButton = new UIButton(this);
    UIButton* const EmailButton = new UIButton(this);
    UITextView* const ExportTextView = new UITextView(this);
    UIProgressView* const ProgressView = new UIProgressView(this);
    UITextView* const HelpTextView = new UITextView(this);
    UIActivityIndicatorView* const activityIndicator = new UIActivityIndicatorView(this);

    // The movies of the file, in its order.
    ExchangeBuilder::MovieRecords theEntryList;
    // Ten units, however many movies there are.
    NSProgress progress{.totalUnitCount = 10};
    // Absent until the file is made.
    std::optional<QString> DataString;

private:
    void showStep();
    void showFile(const Result<QString>& file);
    void announceFile();
    void composeMail(const QString& path);

    ExchangeBuilder builder;
};
