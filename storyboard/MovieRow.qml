import QtQuick
import Marrowvale.Model
import Marrowvale.Controls
import Marrowvale.Toolkit

// A movie of the list. The screen fixes the row's light ground, so its texts are dark in either style.
SwipeRow {
    id: row

    required property movieTableViewCell cell

    component Line: Label {
        required property labelContent content

        width: parent.width
        text: content.text
        elide: Text.ElideRight
        color: content.textColor.valid ? content.textColor : Theme.paper.text
        font.pixelSize: Theme.caption
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
    }

    spokenName: cell.MovieNameLabel.text + "\n" + cell.SecondLabel.text + "\n" + cell.ThirdLabel.text

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: Theme.gap
        anchors.rightMargin: Theme.gap
        radius: row.cell.layer.cornerRadius
        color: row.cell.backgroundColor
        border.width: row.cell.layer.borderWidth
        border.color: row.cell.layer.borderColor

        ImageItem {
            id: cover

            x: 7
            anchors.verticalCenter: parent.verticalCenter
            width: 44
            height: 44
            radius: 6
            image: row.cell.FrontImage // qmllint disable
            fillMode: ImageItem.Stretch
        }

        Column {
            anchors.left: cover.right
            anchors.leftMargin: 8
            anchors.right: parent.right
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            spacing: 1

            Line {
                content: row.cell.MovieNameLabel
                font.pixelSize: 15
                font.bold: true
                fontSizeMode: Text.FixedSize
            }

            Line {
                content: row.cell.SecondLabel
            }

            Line {
                content: row.cell.ThirdLabel
            }
        }

        FocusRing {
            visible: row.isMarked
        }
    }
}
