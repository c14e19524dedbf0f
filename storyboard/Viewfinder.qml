import QtQuick
import Marrowvale.Controls
import Marrowvale.Services

// What the camera sees, or a sentence on why that is nothing. The last picture stays once the picker is gone.
Rectangle {
    id: viewfinder

    required property UIImagePickerController picker

    radius: 12
    color: "#000000"

    Accessible.role: Accessible.Graphic
    Accessible.name: "Viewfinder"

    ImageItem {
        id: picture

        anchors.fill: parent
        fillMode: ImageItem.Fit
        radius: viewfinder.radius
    }

    Connections {
        target: viewfinder.picker

        function onPictureChanged() {
            picture.image = viewfinder.picker.picture; // qmllint disable
        }
    }

    Label {
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.margin
        visible: text.length > 0
        text: viewfinder.picker !== null ? viewfinder.picker.status : ""
        color: "#ffffff"
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
}
