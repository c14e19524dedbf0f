import QtQuick
import Marrowvale.Controls
import Marrowvale.Summaries
import Marrowvale.Toolkit

// A group and its number of movies. The screen fixes the row's light ground, so its texts are dark in either style.
SwipeRow {
    id: row

    required property groupTableViewCell cell

    component Line: Label {
        required property labelContent content

        anchors.verticalCenter: parent.verticalCenter
        text: content.text
        color: content.textColor.valid ? content.textColor : Theme.paper.text
    }

    spokenName: (cell.MovieNameLabel.text.length > 0 ? cell.MovieNameLabel.text : "Empty") + "\n" + cell.CountLabel.text

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: Theme.gap
        anchors.rightMargin: Theme.gap
        radius: row.cell.layer.cornerRadius
        color: row.cell.backgroundColor
        border.width: row.cell.layer.borderWidth
        border.color: row.cell.layer.borderColor

        Line {
            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.right: count.left
            anchors.rightMargin: Theme.gap
            content: row.cell.MovieNameLabel
            elide: Text.ElideRight
            font.bold: true
        }

        Line {
            id: count

            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            content: row.cell.CountLabel
        }

        FocusRing {
            visible: row.isMarked
        }
    }
}
