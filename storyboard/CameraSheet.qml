import QtQuick
import QtQuick.Templates as T
import Marrowvale.Controls
import Marrowvale.Services

// A sheet from below: what the camera sees, and the button that takes it. Closing it takes nothing.
Sheet {
    id: sheet

    required property UIImagePickerController picker

    function cancel() {
        if (sheet.picker !== null)
            sheet.picker.cancel();
    }

    broadest: Theme.columnWidth
    height: area !== null ? area.height - 24 : 0
    closePolicy: T.Popup.CloseOnEscape
    Component.onCompleted: open()
    onAboutToHide: cancel()

    contentItem: CameraPanel {
        focus: true
        picker: sheet.picker
        onCancelled: sheet.close()
    }
}
