import QtQuick

// Empty space that reacts to a tap; what stands on it goes first.
MouseArea {
    property string action

    signal triggered

    onClicked: triggered()
}
