pragma ComponentBehavior: Bound

import QtQuick

// What a share sheet shows: what is shared, what can be done with it, and a way out.
FocusScope {
    id: panel

    property string preview
    property var titles: []
    // The symbol of each title.
    property var symbols: []

    signal chosen(index: int)
    signal cancelled

    implicitHeight: column.implicitHeight

    Accessible.role: Accessible.Dialog
    Accessible.name: "Share"

    Column {
        id: column

        width: parent.width
        topPadding: 8
        bottomPadding: 12

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 40
            height: 5
            radius: 3
            color: Theme.shades.divider
        }

        Label {
            width: parent.width
            padding: Theme.margin
            text: panel.preview.trim()
            color: Theme.shades.secondary
            font.pixelSize: Theme.small
            wrapMode: Text.Wrap
            maximumLineCount: 4
            elide: Text.ElideRight
        }

        Repeater {
            id: choices

            model: panel.titles.length

            MenuChoice {
                required property int index

                width: column.width
                title: panel.titles[index]
                image: panel.symbols[index] ?? ""
                focus: index === 0
                KeyNavigation.up: choices.itemAt(index - 1)
                KeyNavigation.down: choices.itemAt(index + 1)
                onTriggered: panel.chosen(index)
            }
        }

        AlertButton {
            width: column.width
            title: "Cancel"
            onTriggered: panel.cancelled()
        }
    }
}
