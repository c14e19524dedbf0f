import QtQuick
import Marrowvale.Toolkit

// The wheel of a picker.
InputView {
    id: panel

    required property UIPickerView picker

    function turn(event) {
        event.accepted = event.key === Qt.Key_Up || event.key === Qt.Key_Down;
        if (event.accepted)
            wheel.step(event.key === Qt.Key_Up ? -1 : 1);
    }

    implicitHeight: wheel.implicitHeight

    Wheel {
        id: wheel

        anchors.fill: parent
        name: "Choices"
        texts: panel.picker !== null ? panel.picker.titles : []
        row: panel.picker !== null ? panel.picker.selectedRow : -1
        bold: panel.picker !== null && panel.picker.rowLook.bold
        fontSize: panel.picker !== null && panel.picker.rowLook.fontSize > 0 ? panel.picker.rowLook.fontSize : Theme.body
        onTurned: row => panel.picker.choose(row)
    }

    Label {
        anchors.centerIn: parent
        visible: wheel.count === 0
        text: "Nothing to choose from"
        color: Theme.shades.secondary
    }
}
