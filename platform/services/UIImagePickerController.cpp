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

UIImagePickerController::~UIImagePickerController()
{
    turnCameraOff();
}

void UIImagePickerController::viewWillAppear(bool /*animated*/)
{
    cameraOn = true;
    Device::current().camera->start([this](const Result<QImage>& told) { show(told); });
}

void UIImagePickerController::viewDidDisappear(bool /*animated*/)
{
    turnCameraOff();
}

void UIImagePickerController::turnCameraOff()
{
    if (std::exchange(cameraOn, false))
        Device::current().camera->stop();
}

void UIImagePickerController::show(const Result<QImage>& told)
{
    seen = told ? told.value() : QImage();
    missing = problemOf(told);
    Q_EMIT pictureChanged();
}

void UIImagePickerController::take()
{
    if (hasPicture() && presentingViewController() != nullptr)
        delegate.didFinishPickingMediaWithInfo(*this, {{UIImagePickerControllerOriginalImage, seen}});
}

void UIImagePickerController::cancel()
{
    if (presentingViewController() != nullptr)
        delegate.imagePickerControllerDidCancel(*this);
}
