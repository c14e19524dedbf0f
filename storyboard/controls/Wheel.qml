pragma ComponentBehavior: Bound

import QtQuick

// A wheel of texts, turned by dragging, the mouse wheel, the arrow keys or a tap on a row. Showing a value is not
// turning to it.
Item {
    id: wheel

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
        if (row < 0 || row >= wheel.count)
            return;
        list.currentIndex = row;
        wheel.turned(row);
    }

    function step(by: int) {
        // Where nothing was chosen yet, the row in the middle comes first.
        const from = wheel.row < 0 ? list.currentIndex - by : list.currentIndex;
        wheel.turnTo(Math.max(0, Math.min(from + by, wheel.count - 1)));
    }

    function follow() {
        if (wheel.row >= 0 && !list.moving && list.currentIndex !== wheel.row)
            list.currentIndex = wheel.row;
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
        height: wheel.rowHeight
        radius: 10
        color: wheel.markColor
        opacity: wheel.activeFocus ? 0.26 : 0.13
    }

    ListView {
        id: list

        anchors.fill: parent
        clip: true
        model: wheel.count
        snapMode: ListView.SnapToItem
        highlightRangeMode: ListView.StrictlyEnforceRange
        preferredHighlightBegin: (height - wheel.rowHeight) / 2
        preferredHighlightEnd: (height + wheel.rowHeight) / 2
        keyNavigationEnabled: false
        flickDeceleration: 1200
        boundsBehavior: Flickable.DragAndOvershootBounds
        onMovementEnded: wheel.turned(currentIndex)

        delegate: Text {
            id: face

            required property int index
            readonly property real distance: (y + height / 2 - list.contentY - list.height / 2) / wheel.rowHeight

            width: list.width
            height: wheel.rowHeight
            text: wheel.texts[index] ?? index + 1
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            leftPadding: 8
            rightPadding: 8
            color: wheel.textColor
            textFormat: Text.PlainText
            font.family: Theme.fontFamily
            font.pixelSize: wheel.fontSize
            font.bold: wheel.bold
            opacity: Math.max(0.12, 1 - Math.abs(distance) * 0.3)
            scale: Math.max(0.7, 1 - Math.abs(distance) * 0.07)

            Accessible.role: Accessible.ListItem
            Accessible.name: text
            Accessible.onPressAction: wheel.turnTo(index)

            MouseArea {
                anchors.fill: parent
                onClicked: wheel.turnTo(face.index)
            }
        }
    }

    WheelHandler {
        onWheel: event => wheel.step(event.angleDelta.y > 0 ? -1 : 1)
    }
}
