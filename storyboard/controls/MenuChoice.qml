import QtQuick

// One choice of a list of them, with a line above.
Pressable {
    id: choice

    property string image

    implicitHeight: 48

    Accessible.role: Accessible.MenuItem

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.shades.divider
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.shades.accent
        opacity: choice.down ? 0.24 : choice.hovered || choice.activeFocus ? 0.12 : 0
    }

    Text {
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.right: symbol.left
        anchors.verticalCenter: parent.verticalCenter
        text: choice.title
        elide: Text.ElideRight
        color: Theme.shades.text
        textFormat: Text.PlainText
        font.family: Theme.fontFamily
        font.pixelSize: Theme.body
    }

    Symbol {
        id: symbol

        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        name: choice.image
        size: 22
    }
}
