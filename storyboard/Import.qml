import QtQuick
import Marrowvale.Controls
import Marrowvale.Exchange

Scene {
    id: root

    required property ImportViewController screen

    controller: screen

    Item {
        id: column

        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width - 2 * Theme.margin, Theme.columnWidth)
        height: parent.height

        TextBlock {
            id: help

            y: Theme.margin
            width: parent.width
            outlet: root.screen.HelpTextView
            color: Theme.shades.secondary
            font.pixelSize: 14
        }

        Row {
            id: buttons

            anchors.top: help.bottom
            anchors.topMargin: Theme.margin
            spacing: Theme.gap

            PushButton {
                width: (column.width - buttons.spacing) / 2
                outlet: root.screen.LoadFileButton
                title: "Load File"
                action: "LoadFile"
            }

            PushButton {
                width: (column.width - buttons.spacing) / 2
                outlet: root.screen.ImportButton
                title: "Import File"
                action: "ImportTextFile"
            }
        }

        TextLines {
            anchors.top: buttons.bottom
            anchors.topMargin: Theme.margin
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.margin
            width: parent.width
            outlet: root.screen.ImportTextView
            emptyText: "No file loaded"
        }
    }
}
