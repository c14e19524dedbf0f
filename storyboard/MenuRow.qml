import QtQuick
import Marrowvale.Controls
import Marrowvale.Toolkit

// A row of a menu: a symbol and a text.
SwipeRow {
    id: row

    required property tableViewCell cell

    spokenName: cell.textLabel.text

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: Theme.gap
        anchors.rightMargin: Theme.gap
        radius: 12
        color: Theme.shades.surface
        border.width: 1
        border.color: Theme.shades.divider

        Symbol {
            id: symbol

            x: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            name: row.cell.image
            color: Theme.shades.accent
        }

        Label {
            anchors.left: symbol.right
            anchors.leftMargin: Theme.margin
            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            text: row.cell.textLabel.text
            elide: Text.ElideRight
        }

        FocusRing {
            visible: row.isMarked
        }
    }
}
