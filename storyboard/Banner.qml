import QtQuick
import Marrowvale.Controls

// A notice at the bottom of the window, for as long as it has a text. Screens end above it.
Item {
    id: banner

    property string text
    // The text stays while the banner folds away.
    property string shownText
    property real openness: text.length > 0 ? 1 : 0

    implicitHeight: face.height * openness
    visible: openness > 0
    clip: true
    onTextChanged: if (text.length > 0)
        shownText = text

    Accessible.role: Accessible.AlertMessage
    Accessible.name: shownText

    Behavior on openness {
        NumberAnimation {
            duration: Theme.slide
            easing.type: Easing.OutCubic
        }
    }

    Rectangle {
        id: face

        width: parent.width
        height: Math.max(Theme.target, label.implicitHeight + 2 * Theme.gap)
        color: Theme.shades.surface

        Rectangle {
            width: parent.width
            height: 1
            color: Theme.shades.divider
        }

        Rectangle {
            width: 4
            height: parent.height
            color: Theme.shades.danger
        }

        Label {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            x: (parent.width - width) / 2
            width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
            text: banner.shownText
            wrapMode: Text.Wrap
            font.pixelSize: Theme.body
        }
    }
}
