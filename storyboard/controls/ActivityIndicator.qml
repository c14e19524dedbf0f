pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Toolkit

// Turns over what it covers while its outlet does. What lies below can't be touched meanwhile.
Item {
    id: indicator

    required property UIActivityIndicatorView outlet
    // Told to assistive technology.
    property string name: "In progress"

    visible: opacity > 0
    opacity: outlet.animating ? 1 : 0

    Behavior on opacity {
        NumberAnimation {
            duration: Theme.brief
        }
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
    }

    Rectangle {
        anchors.centerIn: parent
        width: 84
        height: 84
        radius: 18
        color: Theme.shades.surface
        border.width: 1
        border.color: Theme.shades.divider

        Accessible.role: Accessible.ProgressBar
        Accessible.name: indicator.name

        Item {
            anchors.centerIn: parent
            width: 40
            height: 40

            Repeater {
                model: 10

                Rectangle {
                    id: spoke

                    required property int index

                    x: 18
                    width: 4
                    height: 11
                    radius: 2
                    color: Theme.shades.accent
                    opacity: 0.15 + 0.085 * spoke.index
                    transform: Rotation {
                        origin.x: 2
                        origin.y: 20
                        angle: 36 * spoke.index
                    }
                }
            }

            RotationAnimation on rotation {
                from: 0
                to: 360
                duration: 1000
                loops: Animation.Infinite
                running: indicator.visible
            }
        }
    }
}
