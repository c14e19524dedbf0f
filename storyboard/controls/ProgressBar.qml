import QtQuick
import Marrowvale.Toolkit

// How far work has come.
Item {
    id: bar

    required property UIProgressView outlet
    property real shown: outlet.progress

    implicitHeight: 6

    Accessible.role: Accessible.ProgressBar
    Accessible.name: "Progress " + Math.round(100 * outlet.progress) + " %"

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: Theme.shades.divider
    }

    Rectangle {
        width: bar.width * bar.shown
        height: parent.height
        radius: height / 2
        color: Theme.shades.accent
    }

    Behavior on shown {
        NumberAnimation {
            duration: Theme.slide
            easing.type: Easing.OutCubic
        }
    }
}
