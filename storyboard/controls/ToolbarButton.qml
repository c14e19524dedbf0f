import QtQuick
import Marrowvale.Toolkit

// An item of a toolbar: a button, or a space of the width that is left for it.
BarButton {
    id: button

    required property UIBarButtonItem item
    property real spaceWidth: 0
    // What the button stands on; transparent: on the bar itself.
    property color ground: "transparent"
    readonly property bool grounded: ground.a > 0
    readonly property bool isSpace: item !== null && item.flexibleSpace
    readonly property real naturalWidth: isSpace ? 0 : implicitWidth + (grounded ? 16 : 0)

    width: isSpace ? spaceWidth : naturalWidth
    outlet: item
    enabled: available && !isSpace
    onTriggered: item.tap()

    Accessible.ignored: isSpace

    Rectangle {
        z: -1
        anchors.fill: parent
        anchors.topMargin: 5
        anchors.bottomMargin: 5
        visible: button.grounded && !button.isSpace
        radius: height / 2
        color: button.ground
        border.width: button.activeFocus ? 3 : 0
        border.color: button.tint
    }
}
