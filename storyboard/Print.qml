import QtQuick
import Marrowvale.Controls
import Marrowvale.Exchange

// The text to print lies on paper, which is light in either style.
Scene {
    id: root

    required property PrintMoviesViewController screen

    controller: screen

    Item {
        id: column

        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width - 2 * Theme.margin, Theme.columnWidth)
        height: parent.height

        Row {
            id: buttons

            y: Theme.margin
            spacing: Theme.gap

            PushButton {
                width: (column.width - buttons.spacing) / 2
                outlet: root.screen.CreateFileButton
                shades: Theme.paper
                title: "Create and Print"
                action: "CreateFileClick"
            }

            PushButton {
                width: (column.width - buttons.spacing) / 2
                outlet: root.screen.PrintButton
                shades: Theme.paper
                title: "Print"
                action: "EmailFileClick"
            }
        }

        TextLines {
            anchors.top: buttons.bottom
            anchors.topMargin: Theme.margin
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.margin
            width: parent.width
            name: "Text to Print"
            outlet: root.screen.FileTextView
            shades: Theme.paper
            emptyText: "Nothing created yet"
        }
    }

    ActivityIndicator {
        anchors.fill: parent
        outlet: root.screen.activityIndicator
        name: "Printing"
    }
}
