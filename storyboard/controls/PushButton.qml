import QtQuick

// A button with a border, as its outlet says. It folds away while its outlet is hidden.
Pressable {
    id: button

    property Shades shades: Theme.shades
    // Room below the button, which folds away with it.
    property int spacing: 0
    property int faceHeight: 48
    // The symbol above the title instead of beside it.
    property bool stacked: false
    property real openness: outlet !== null && outlet.hidden ? 0 : 1

    readonly property color titleColor: {
        if (available)
            return shades.text;
        return outlet.disabledTitleColor.valid ? outlet.disabledTitleColor : shades.secondary;
    }

    implicitHeight: (face.height + spacing) * openness
    implicitWidth: Math.max(Theme.target, content.implicitWidth + 2 * Theme.margin)
    visible: openness > 0
    opacity: openness
    // What is folded away would take the Enter key unseen.
    onVisibleChanged: if (openness === 0)
        focus = false

    Behavior on openness {
        NumberAnimation {
            duration: button.outlet !== null ? button.outlet.hidingDuration * 1000 : 0
            easing.type: Easing.OutCubic
        }
    }

    Rectangle {
        id: face

        width: parent.width
        height: button.faceHeight
        y: (button.openness - 1) * height / 2
        radius: button.outlet !== null ? button.outlet.layer.cornerRadius : 10
        color: button.shades.surface
        border.width: button.outlet !== null ? button.outlet.layer.borderWidth : 1
        border.color: button.outlet !== null && button.outlet.layer.borderColor.valid ? button.outlet.layer.borderColor : button.shades.divider

        Rectangle {
            anchors.fill: parent
            radius: face.radius
            color: button.shades.accent
            opacity: button.down ? 0.24 : button.hovered && button.available ? 0.08 : 0

            Behavior on opacity {
                NumberAnimation {
                    duration: Theme.brief
                }
            }
        }

        Grid {
            id: content

            anchors.centerIn: parent
            columns: button.stacked || !symbol.visible ? 1 : 2
            spacing: button.stacked ? 4 : 8
            horizontalItemAlignment: Grid.AlignHCenter
            verticalItemAlignment: Grid.AlignVCenter

            Symbol {
                id: symbol

                name: button.outlet !== null ? button.outlet.image : ""
                color: button.titleColor
                size: 20
                visible: name.length > 0
            }

            Text {
                text: button.shownTitle
                color: button.titleColor
                textFormat: Text.PlainText
                font.family: Theme.fontFamily
                font.pixelSize: button.stacked ? Theme.small : Theme.body
            }
        }

        FocusRing {
            visible: button.activeFocus
            tint: button.shades.accent
        }
    }
}
