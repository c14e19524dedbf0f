pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Controls

// A wheel of texts, turned by dragging, the mouse wheel, the arrow keys or a tap on a row. Showing a value is not
// turning to it.
Item {
    id: dial

    required property string name
    // What the rows say; none: rows are numbered from 1 to `count`.
    property var texts: []
    property int count: texts.length
    // The row in the middle; below 0: none was chosen.
    property int row: -1
    property bool bold: false
    property int fontSize: Theme.body + 2
    property color textColor: Theme.shades.text
    property color markColor: Theme.shades.accent
    readonly property int rowHeight: 36

    signal turned(row: int)

    function turnTo(row: int) {
        if (row < 0 || row >= dial.count)
            return;
        list.currentIndex = row;
        dial.turned(row);
    }

    function step(by: int) {
        // Where nothing was chosen yet, the row in the middle comes first.
        const from = dial.row < 0 ? list.currentIndex - by : list.currentIndex;
        dial.turnTo(Math.max(0, Math.min(from + by, dial.count - 1)));
    }

    function follow() {
        if (dial.row >= 0 && !list.moving && list.currentIndex !== dial.row)
            list.currentIndex = dial.row;
    }

    implicitHeight: 216
    activeFocusOnTab: true
    onRowChanged: follow()
    Component.onCompleted: {
        list.highlightMoveDuration = 0;
        follow();
        list.positionViewAtIndex(list.currentIndex, ListView.SnapPosition);
        list.highlightMoveDuration = Theme.slide;
    }

    Accessible.role: Accessible.List
    Accessible.name: name
    Accessible.focusable: true
    Accessible.focused: activeFocus

    Keys.onUpPressed: step(-1)
    Keys.onDownPressed: step(1)

    Rectangle {
        anchors.centerIn: parent
        width: parent.width - 8
        height: dial.rowHeight
        radius: 10
        color: dial.markColor
        opacity: dial.activeFocus ? 0.26 : 0.13
    }

    ListView {
        id: list

        anchors.fill: parent
        clip: true
        model: dial.count
        snapMode: ListView.SnapToItem
        highlightRangeMode: ListView.StrictlyEnforceRange
        preferredHighlightBegin: (height - dial.rowHeight) / 2
        preferredHighlightEnd: (height + dial.rowHeight) / 2
        keyNavigationEnabled: false
        flickDeceleration: 1200
        boundsBehavior: Flickable.DragAndOvershootBounds
        onMovementEnded: dial.turned(currentIndex)

        RowOrder {
            content: list.contentItem
        }

        // Within the list, or that would scroll as well.
        WheelHandler {
            onWheel: event => dial.step(event.angleDelta.y > 0 ? -1 : 1)
        }

        delegate: Text {
            id: face

            required property int index
            readonly property real distance: (y + height / 2 - list.contentY - list.height / 2) / dial.rowHeight

            width: list.width
            height: dial.rowHeight
            text: dial.texts[index] ?? index + 1
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            leftPadding: 8
            rightPadding: 8
            color: dial.textColor
            textFormat: Text.PlainText
            font.family: Theme.fontFamily
            font.pixelSize: dial.fontSize
            font.bold: dial.bold
            opacity: Math.max(0.12, 1 - Math.abs(distance) * 0.3)
            scale: Math.max(0.7, 1 - Math.abs(distance) * 0.07)

            Accessible.role: Accessible.ListItem
            Accessible.name: text
            Accessible.onPressAction: dial.turnTo(index)

            MouseArea {
                anchors.fill: parent
                onClicked: dial.turnTo(face.index)
            }
        }
    }
}
