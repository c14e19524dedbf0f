#pragma once

#include "exchange/ExchangeReader.h"
#include "model/AppDelegate.h"
#include "model/Movies.h"
#include "platform/services/UIDocumentPickerViewController.h"
#include "platform/toolkit/UIButton.h"
#include "platform/toolkit/UITextView.h"
#include "platform/toolkit/UIViewController.h"

// Loads an exchange file that the user picks, shows its text and, when asked to, merges it into the
// catalogue: line by line, each saved on its own, into the one movie of the same title and year or into a new
// one. What lies between the movies makes a record too: every line does. Nothing is ever deleted.
//
// An AppDelegate and a Device must be there while it is used. A catalogue that does not open and a new movie
// whose run time or year is no number end the program; the lines before are in the catalogue then.
class ImportViewController : public UIViewController, public UIDocumentPickerDelegate
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens are made by the storyboard")
    Q_PROPERTY(UIButton* ImportButton MEMBER ImportButton CONSTANT FINAL)
    Q_PROPERTY(UIButton* LoadFileButton MEMBER LoadFileButton CONSTANT FINAL)
    Q_PROPERTY(UITextView* ImportTextView MEMBER ImportTextView CONSTANT FINAL)
    Q_PROPERTY(UITextView* HelpTextView MEMBER HelpTextView CONSTANT FINAL)

public:
    using UIViewController::UIViewController;

    void viewDidLoad() override;
    void didPickDocumentAt(UIDocumentPickerViewController& picker, const QUrl& url) override;

    Q_INVOKABLE void LoadFile();
    // Merges `document`, all of it before it returns.
    Q_INVOKABLE void ImportTextFile();

    UIButton* const ImportButton = new UIButton(this);
    UIButton* const LoadFileButton = new UIButton(this);
    UITextView* const ImportTextView = new UITextView(this);
    UITextView* const HelpTextView = new UITextView(this);

    // The name of the picked file without its folder, and its text.
    QString filename;
    QString document;
    // Whether the last run found that `document` is no exchange file; absent before the first.
    std::optional<bool> wrongFile;

    // Of the line last imported: the texts that tell its movie, and the movies that they told.
    QString theMovieName;
    QString theYear;
    std::vector<std::shared_ptr<Movies>> results;
    std::size_t resultCount = 0;

private:
    void importLines();
    void importLine(const ExchangeTexts& texts);
    void fetchResults(NSManagedObjectContext& managedObjectContext);
    void mergeLine(const ExchangeTexts& texts, NSManagedObjectContext& managedObjectContext);
    void showResult();
    void showAlert(const QString& message, std::function<void()> whenClosed = nullptr);
};
