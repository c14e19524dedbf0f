import QtQuick
import Marrowvale.Controls

// The large round button that takes a picture.
Pressable {
    id: button

    implicitWidth: 76
    implicitHeight: 76
    opacity: enabled ? 1 : 0.4

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: "transparent"
        border.width: 4
        border.color: Theme.shades.accent
    }

    Rectangle {
        anchors.centerIn: parent
        width: parent.width - (button.down ? 22 : 16)
        height: width
        radius: width / 2
        color: Theme.shades.accent
        opacity: button.down ? 0.6 : button.hovered ? 0.85 : 1
    }

    FocusRing {
        anchors.margins: -5
        radius: width / 2
        tint: Theme.shades.text
    }
}
