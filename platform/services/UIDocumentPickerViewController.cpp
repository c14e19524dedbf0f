#include "platform/services/UIDocumentPickerViewController.h"

#include "platform/services/Device.h"
#include "platform/toolkit/UIImage.h"

#include <QPointer>

namespace {

const QString jpegType = QStringLiteral("public.jpeg");
const QString pngType = QStringLiteral("public.png");

QString readableImages()
{
    return QStringLiteral("*.") + imageFileSuffixes().join(QStringLiteral(" *."));
}

QStringList nameFiltersFor(const QStringList& types)
{
    const QString everything = QStringLiteral("All files (*)");
    if (types.contains(jpegType) || types.contains(pngType))
        return {QStringLiteral("Images (%1)").arg(readableImages()), everything};
    return {everything};
}

} // namespace

void UIDocumentPickerDelegate::didPickDocumentsAtURLs(UIDocumentPickerViewController& picker,
                                                      const QList<QUrl>& urls)
{
    didPickDocumentAt(picker, urls.first());
}

void UIDocumentPickerDelegate::didPickDocumentAt(UIDocumentPickerViewController& /*picker*/,
                                                 const QUrl& /*url*/)
{
}

void UIDocumentPickerDelegate::documentPickerWasCancelled(UIDocumentPickerViewController& /*picker*/) {}

UIDocumentPickerViewController::UIDocumentPickerViewController(QStringList contentTypes,
                                                               UIDocumentPickerDelegate& delegate)
    : types(std::move(contentTypes))
    , delegate(delegate)
{
}

UIDocumentPickerViewController::~UIDocumentPickerViewController()
{
    takeDialogAway();
}

void UIDocumentPickerViewController::viewWillAppear(bool /*animated*/)
{
    dialogOpen = true;
    const QPointer<UIDocumentPickerViewController> self(this);
    Device::current().documents->pickDocument({QStringLiteral("Choose a File"), nameFiltersFor(types)},
                                              [self](const std::optional<QUrl>& picked) {
                                                  if (self)
                                                      self->finish(picked);
                                              });
}

void UIDocumentPickerViewController::viewDidDisappear(bool /*animated*/)
{
    takeDialogAway();
}

void UIDocumentPickerViewController::takeDialogAway()
{
    if (std::exchange(dialogOpen, false))
        Device::current().documents->cancelPicking();
}

void UIDocumentPickerViewController::finish(const std::optional<QUrl>& picked)
{
    dialogOpen = false;
    if (presentingViewController() != nullptr)
        presentingViewController()->dismiss();
    if (picked)
        delegate.didPickDocumentsAtURLs(*this, {*picked});
    else
        delegate.documentPickerWasCancelled(*this);
}
