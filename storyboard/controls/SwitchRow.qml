import QtQuick
import Marrowvale.Toolkit

// A line of settings: a label and its switch, which a tap anywhere on the line turns.
Item {
    id: row

    required property string label
    required property UISwitch toggle
    property string toggleAction
    // The label's own outlet, where it has one.
    property UILabel caption: null

    implicitHeight: 56
    height: implicitHeight
    visible: !toggle.hidden

    MouseArea {
        id: area

        anchors.fill: parent
        enabled: row.toggle.enabled
        cursorShape: Qt.PointingHandCursor
        onClicked: face.press()
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.shades.accent
        opacity: area.pressed && area.containsMouse ? 0.1 : 0
    }

    Label {
        property UILabel outlet: row.caption

        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.right: face.left
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        visible: outlet === null || !outlet.hidden
        text: outlet !== null && outlet.text.length > 0 ? outlet.text : row.label
        elide: Text.ElideRight

        // The switch has its name.
        Accessible.ignored: true
    }

    Switch {
        id: face

        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        label: row.label
        outlet: row.toggle
        action: row.toggleAction
        held: area.pressed && area.containsMouse
    }
}
