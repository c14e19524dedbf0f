import QtQuick

// The button under a row that was drawn aside.
Pressable {
    id: button

    activeFocusOnTab: false

    Rectangle {
        anchors.fill: parent
        radius: 10
        color: "#c4161c"
    }

    Text {
        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 4)
        text: button.title
        elide: Text.ElideRight
        color: "white"
        textFormat: Text.PlainText
        font.family: Theme.fontFamily
        font.pixelSize: Theme.body
        font.bold: true
    }
}
