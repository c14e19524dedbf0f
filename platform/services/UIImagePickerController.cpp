#include "platform/services/UIImagePickerController.h"

#include "platform/services/Device.h"

bool UIImagePickerController::isCameraAvailable()
{
    return Device::current().camera->isAvailable();
}

UIImagePickerController::UIImagePickerController(UIImagePickerControllerDelegate& delegate)
    : delegate(delegate)
{
}

void UIImagePickerController::take(const QImage& image)
{
    QVariantMap info;
    if (!image.isNull())
        info.insert(UIImagePickerControllerOriginalImage, image);
    delegate.didFinishPickingMediaWithInfo(*this, info);
}

void UIImagePickerController::cancel()
{
    delegate.imagePickerControllerDidCancel(*this);
}
