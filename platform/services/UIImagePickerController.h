#pragma once

#include "platform/toolkit/UIViewController.h"

#include <QImage>
#include <QVariantMap>

class UIImagePickerController;

// Where the picture as it was taken, a QImage, stands in a picker's result.
inline const QString UIImagePickerControllerOriginalImage =
    QStringLiteral("UIImagePickerControllerOriginalImage");

// A delegate takes the picker away itself.
class UIImagePickerControllerDelegate
{
public:
    virtual ~UIImagePickerControllerDelegate() = default;

    virtual void didFinishPickingMediaWithInfo(UIImagePickerController& picker, const QVariantMap& info) = 0;
    virtual void imagePickerControllerDidCancel(UIImagePickerController& picker) = 0;
};

// Takes a picture with the device's camera; the picture can't be edited before it is handed over.
class UIImagePickerController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Presented by screens")

public:
    [[nodiscard]] static bool isCameraAvailable();

    // `delegate` must outlive the picker.
    explicit UIImagePickerController(UIImagePickerControllerDelegate& delegate);

    // The user took `image`; a null one reports a result without a picture.
    Q_INVOKABLE void take(const QImage& image);
    Q_INVOKABLE void cancel();

private:
    UIImagePickerControllerDelegate& delegate;
};
