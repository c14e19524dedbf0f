#pragma once

#include "platform/foundation/Result.h"
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

// Takes a picture with the device's camera, which is on while the picker is presented; the picture can't be
// edited before it is handed over.
class UIImagePickerController : public UIViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Presented by screens")
    Q_PROPERTY(QImage picture READ picture NOTIFY pictureChanged FINAL)
    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY pictureChanged FINAL)
    Q_PROPERTY(QString status READ status NOTIFY pictureChanged FINAL)

public:
    [[nodiscard]] static bool isCameraAvailable();

    // `delegate` must outlive the picker.
    explicit UIImagePickerController(UIImagePickerControllerDelegate& delegate);
    ~UIImagePickerController() override;

    void viewWillAppear(bool animated) override;
    void viewDidDisappear(bool animated) override;

    // What the camera sees now; null: nothing yet, or no more.
    [[nodiscard]] QImage picture() const { return seen; }
    [[nodiscard]] bool hasPicture() const { return !seen.isNull(); }
    // A sentence for people on why there is no picture; empty where there is one.
    [[nodiscard]] QString status() const { return missing; }

    // The user takes the picture that is shown. None is, or the picker is gone: does nothing.
    Q_INVOKABLE void take();
    // The user closed the picker; gone already: does nothing.
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void pictureChanged();

private:
    void show(const Result<QImage>& told);
    void turnCameraOff();

    UIImagePickerControllerDelegate& delegate;
    QImage seen;
    QString missing = QStringLiteral("The camera gives no picture yet.");
    bool cameraOn = false;
};
