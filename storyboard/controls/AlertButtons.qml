pragma ComponentBehavior: Bound

import QtQuick

// The buttons of an alert, one below the other; the first one has the keyboard.
FocusScope {
    id: buttons

    required property var titles

    signal chosen(index: int)

    implicitHeight: column.implicitHeight
    focus: true

    Column {
        id: column

        width: parent.width

        Repeater {
            model: buttons.titles.length

            AlertButton {
                required property int index

                width: column.width
                title: buttons.titles[index]
                focus: index === 0
                onTriggered: buttons.chosen(index)
            }
        }
    }
}
