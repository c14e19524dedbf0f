import QtQuick
import Marrowvale.Controls

// A layout comes in from the side, or goes.
Transition {
    property alias from: slide.from
    property alias to: slide.to

    NumberAnimation {
        id: slide

        property: "x"
        from: 0
        to: 0
        duration: Theme.slide
        easing.type: Easing.OutCubic
    }
}
