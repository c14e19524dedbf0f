#pragma once

#include "platform/toolkit/UIViewController.h"

#include <QStringList>
#include <QUrl>

class UIDocumentPickerViewController;

class UIDocumentPickerDelegate
{
public:
    virtual ~UIDocumentPickerDelegate() = default;

    // Screens answer either of the two; the picker has been taken away already. `urls` is never empty.
    virtual void didPickDocumentsAtURLs(UIDocumentPickerViewController& picker, const QList<QUrl>& urls);
    virtual void didPickDocumentAt(UIDocumentPickerViewController& picker, const QUrl& url);
    virtual void documentPickerWasCancelled(UIDocumentPickerViewController& picker);
};

// Lets the user pick one file, in the desktop's own dialog, as soon as it is presented.
class UIDocumentPickerViewController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Presented by screens")

public:
    // Names of kinds of file, such as "public.jpeg"; a kind not known to the desktop lets every file through.
    // `delegate` must outlive the picker.
    UIDocumentPickerViewController(QStringList contentTypes, UIDocumentPickerDelegate& delegate);
    ~UIDocumentPickerViewController() override;

    [[nodiscard]] QStringList contentTypes() const { return types; }

    void viewWillAppear(bool animated) override;
    void viewDidDisappear(bool animated) override;

private:
    void finish(const std::optional<QUrl>& picked);
    void takeDialogAway();

    bool dialogOpen = false;
    QStringList types;
    UIDocumentPickerDelegate& delegate;
};
