import QtQuick

// A button as wide as its alert, under a line.
Pressable {
    id: button

    implicitHeight: 48

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.shades.divider
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: 4
        radius: 12
        color: Theme.shades.accent
        opacity: button.down ? 0.24 : button.hovered || button.activeFocus ? 0.1 : 0
    }

    Text {
        anchors.centerIn: parent
        text: button.title
        color: Theme.shades.accent
        textFormat: Text.PlainText
        font.family: Theme.fontFamily
        font.pixelSize: Theme.headline
        font.bold: true
    }
}
