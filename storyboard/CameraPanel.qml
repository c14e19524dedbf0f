import QtQuick
import Marrowvale.Controls
import Marrowvale.Services

// What a camera sheet shows: what the camera sees, the button that takes it, and a way out.
FocusScope {
    id: panel

    // Null once it is gone.
    required property UIImagePickerController picker

    signal cancelled

    Accessible.role: Accessible.Dialog
    Accessible.name: "Camera"

    Viewfinder {
        anchors.top: parent.top
        anchors.bottom: shutter.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.margin
        picker: panel.picker
    }

    ShutterButton {
        id: shutter

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.margin
        focus: true
        enabled: panel.picker !== null && panel.picker.hasPicture
        title: "Take Photo"
        onTriggered: panel.picker.take()
    }

    BarButton {
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: shutter.verticalCenter
        title: "Cancel"
        onTriggered: panel.cancelled()
    }
}
