import QtQuick
import Marrowvale.Controls
import Marrowvale.Editing

// A value of a reference list. The screen fixes the row's light ground, so its text is dark in either style.
SwipeRow {
    id: row

    required property referenceListTableViewCell cell

    spokenName: label.text.length > 0 ? label.text : "Empty"

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: Theme.gap
        anchors.rightMargin: Theme.gap
        radius: row.cell.layer.cornerRadius
        color: row.cell.backgroundColor
        border.width: row.cell.layer.borderWidth
        border.color: row.cell.layer.borderColor

        Label {
            id: label

            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            text: row.cell.valueLabel.text
            elide: Text.ElideRight
            color: row.cell.valueLabel.textColor.valid ? row.cell.valueLabel.textColor : Theme.paper.text
        }

        FocusRing {
            visible: row.isMarked
        }
    }
}
