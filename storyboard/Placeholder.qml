import QtQuick
import Marrowvale.Browse
import Marrowvale.Controls

Scene {
    id: root

    required property PlaceholderViewController screen

    controller: screen

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, 380)
        spacing: 28

        OutletLabel {
            width: parent.width
            outlet: root.screen.MessageLabel
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            lineHeight: 1.3
        }

        PushButton {
            width: parent.width
            title: "Back to Menu"
            segue: "unwindToMenu"
        }
    }
}
