import QtQuick

// One day of a month.
Pressable {
    id: cell

    property bool picked: false
    property Shades shades: Theme.shades

    implicitHeight: Theme.target
    activeFocusOnTab: false

    Accessible.selectable: true
    Accessible.selected: picked

    Rectangle {
        anchors.centerIn: parent
        width: 36
        height: 36
        radius: 18
        color: cell.shades.accent
        opacity: cell.picked ? 1 : cell.hovered ? 0.14 : 0
    }

    Text {
        anchors.centerIn: parent
        text: cell.title
        color: cell.picked ? cell.shades.accentText : cell.shades.text
        font.family: Theme.fontFamily
        font.pixelSize: Theme.body
        font.bold: cell.picked
    }
}
