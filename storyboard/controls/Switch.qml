import QtQuick
import Marrowvale.Toolkit

// A switch, as its outlet says.
Item {
    id: control

    required property string label
    required property UISwitch outlet
    property string action
    property Shades shades: Theme.shades
    property bool held: false
    readonly property bool on: outlet.isOn

    signal triggered

    function press() {
        control.outlet.toggle();
    }

    implicitWidth: track.width
    implicitHeight: Theme.target
    visible: !outlet.hidden
    opacity: outlet.enabled ? 1 : 0.4
    activeFocusOnTab: outlet.enabled

    Accessible.role: Accessible.CheckBox
    Accessible.name: label
    Accessible.checkable: true
    Accessible.checked: on
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: press()
    Accessible.onToggleAction: press()

    Keys.onSpacePressed: event => press()

    Connections {
        target: control.outlet

        function onValueChanged() {
            control.triggered();
        }
    }

    Rectangle {
        id: track

        anchors.verticalCenter: parent.verticalCenter
        width: 54
        height: 32
        radius: 16
        color: control.on ? control.shades.accent : control.shades.field
        border.width: control.on ? 0 : 2
        border.color: control.shades.secondary

        Behavior on color {
            ColorAnimation {
                duration: Theme.brief
            }
        }

        Rectangle {
            readonly property int inset: control.on ? 4 : 6

            x: control.on ? parent.width - width - inset : inset
            y: (parent.height - height) / 2
            width: height + (control.held ? 5 : 0)
            height: parent.height - 2 * inset
            radius: height / 2
            color: control.on ? control.shades.accentText : control.shades.secondary

            Behavior on x {
                NumberAnimation {
                    duration: Theme.brief
                    easing.type: Easing.OutCubic
                }
            }
            Behavior on width {
                NumberAnimation {
                    duration: Theme.brief
                }
            }
            Behavior on height {
                NumberAnimation {
                    duration: Theme.brief
                }
            }
        }

        FocusRing {
            visible: control.activeFocus
            tint: control.shades.accent
            radius: 19
        }
    }
}
