import QtQuick

// Shows where the keyboard is, around its parent.
Rectangle {
    property color tint: Theme.shades.accent

    anchors.fill: parent
    anchors.margins: -3
    visible: parent.activeFocus
    color: "transparent"
    border.width: 2
    border.color: tint
    radius: 12
}
