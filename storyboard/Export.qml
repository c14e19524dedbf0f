import QtQuick
import Marrowvale.Controls
import Marrowvale.Exchange

Scene {
    id: root

    required property ExportViewController screen

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

        PushButton {
            id: create

            anchors.top: help.bottom
            anchors.topMargin: Theme.margin
            width: parent.width
            outlet: root.screen.ExportButton
            title: "Create Export File"
            action: "CreateUpdateFile"
        }

        ProgressBar {
            id: bar

            anchors.top: create.bottom
            anchors.topMargin: Theme.gap
            width: parent.width
            outlet: root.screen.ProgressView
        }

        Row {
            id: buttons

            anchors.top: bar.bottom
            anchors.topMargin: Theme.gap
            spacing: Theme.gap

            PushButton {
                width: (column.width - buttons.spacing) / 2
                outlet: root.screen.SaveButton
                title: "Save To Files"
                action: "SaveToFiles"
            }

            PushButton {
                width: (column.width - buttons.spacing) / 2
                outlet: root.screen.EmailButton
                title: "Email File"
                action: "WriteTextFile"
            }
        }

        TextLines {
            anchors.top: buttons.bottom
            anchors.topMargin: Theme.margin
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.margin
            width: parent.width
            outlet: root.screen.ExportTextView
            emptyText: "No file yet"
        }
    }

    ActivityIndicator {
        anchors.fill: parent
        outlet: root.screen.activityIndicator
        name: "Making the file"
    }
}
