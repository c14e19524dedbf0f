pragma ComponentBehavior: Bound

import QtQuick

// Titled choices, one below the other; the arrow keys move among them.
FocusScope {
    id: list

    property string heading
    required property var titles

    signal chosen(index: int)

    implicitHeight: column.implicitHeight

    Accessible.role: Accessible.PopupMenu
    Accessible.name: heading

    Column {
        id: column

        width: parent.width

        Label {
            width: parent.width
            visible: text.length > 0
            text: list.heading
            padding: 12
            horizontalAlignment: Text.AlignHCenter
            color: Theme.shades.secondary
            font.pixelSize: Theme.small
        }

        Repeater {
            id: choices

            model: list.titles.length

            MenuChoice {
                required property int index

                width: column.width
                title: list.titles[index]
                focus: index === 0
                KeyNavigation.up: choices.itemAt(index - 1)
                KeyNavigation.down: choices.itemAt(index + 1)
                onTriggered: list.chosen(index)
            }
        }
    }
}
