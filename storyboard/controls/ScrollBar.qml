import QtQuick
import QtQuick.Templates as T

// Thin while scrolling, wide enough to grab under the pointer.
T.ScrollBar {
    id: bar

    implicitWidth: 14
    padding: 3
    minimumSize: Math.min(1, 56 / Math.max(height, 1))
    visible: size < 1

    contentItem: Rectangle {
        implicitWidth: 8
        radius: width / 2
        color: Theme.shades.secondary
        opacity: bar.pressed ? 0.9 : bar.hovered ? 0.7 : bar.active ? 0.45 : 0

        Behavior on opacity {
            NumberAnimation {
                duration: Theme.slide
            }
        }
    }
}
