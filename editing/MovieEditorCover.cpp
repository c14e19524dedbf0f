// Where a movie editor's cover comes from.

#include "editing/MovieEditorViewController.h"
#include "platform/foundation/Console.h"
#include "platform/services/Device.h"
#include "platform/services/SystemVersions.h"
#include "platform/toolkit/UIImage.h"

namespace {

QStringList coverContentTypes()
{
    QStringList types{QStringLiteral("public.data")};
    if (Device::current().systemVersion >= SystemVersions::contentTypes)
        types << QStringLiteral("public.jpeg") << QStringLiteral("public.png");
    return types;
}

} // namespace

void MovieEditorViewController::OpenFrontCamera()
{
    if (!UIImagePickerController::isCameraAvailable()) {
        showAlert(QStringLiteral("Camera"), QStringLiteral("There is no camera available"));
        return;
    }
    isFrontImage = true;
    isFromCamera = true;
    present(std::make_unique<UIImagePickerController>(*this));
}

void MovieEditorViewController::didFinishPickingMediaWithInfo(UIImagePickerController& /*picker*/,
                                                              const QVariantMap& info)
{
    const auto image = info.value(UIImagePickerControllerOriginalImage).value<QImage>();
    if (image.isNull())
        return;
    chosenFrontImage = image;
    coverView->setImage(image);
    isFrontImage = false;
    isFromCamera = false;
    dismiss();
}

void MovieEditorViewController::imagePickerControllerDidCancel(UIImagePickerController& /*picker*/)
{
    dismiss();
}

void MovieEditorViewController::PasteImage()
{
    const QImage image = Device::current().pasteboard->image();
    if (image.isNull())
        showAlert(QStringLiteral("Clipboard"), QStringLiteral("There is no image in the Clipboard"));
    else
        coverView->setImage(image);
}

void MovieEditorViewController::AttachFrontImage()
{
    isFrontImage = true;
    present(std::make_unique<UIDocumentPickerViewController>(coverContentTypes(), *this));
}

void MovieEditorViewController::didPickDocumentsAtURLs(UIDocumentPickerViewController& /*picker*/,
                                                       const QList<QUrl>& urls)
{
    console(QStringLiteral("Chosen"));
    document = urls.first();
    const QImage image = imageInFile(document.toLocalFile());
    if (image.isNull())
        return;
    coverView->setContentMode(UIImageView::ContentMode::ScaleAspectFit);
    coverView->setImage(image);
}
