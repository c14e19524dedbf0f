import QtQuick
import Marrowvale.Toolkit

// The header of a table: a label in the looks that the screen gives it.
Rectangle {
    id: header

    required property labelContent content

    implicitHeight: label.implicitHeight + 12
    color: content.backgroundColor.valid ? content.backgroundColor : "transparent"

    Label {
        id: label

        anchors.centerIn: parent
        width: parent.width - 2 * Theme.margin
        text: header.content.text
        horizontalAlignment: header.content.centred ? Text.AlignHCenter : Text.AlignLeft
        elide: Text.ElideRight
        color: header.content.textColor.valid ? header.content.textColor : Theme.shades.text
        font.pixelSize: header.content.fontSize > 0 ? header.content.fontSize : Theme.small
        font.bold: header.content.bold

        Accessible.role: Accessible.StaticText
    }
}
