import QtQuick
import Marrowvale.Controls
import Marrowvale.Toolkit

// A table under its header. A chosen row triggers the segue.
FocusScope {
    id: table

    required property UITableView outlet
    // Told to assistive technology.
    required property string name
    property string segue
    property string emptyText
    property int columnWidth: Theme.columnWidth
    property alias delegate: list.delegate

    signal triggered

    // Rows that have gone leave the list's idea of where it begins behind until it is laid out.
    function showTop() {
        list.forceLayout();
        list.contentY = list.originY - list.topMargin;
    }

    Connections {
        target: table.outlet

        function onSelected() {
            table.triggered();
        }
    }

    TableHeader {
        id: header

        width: parent.width
        content: table.outlet.header
        visible: table.outlet.hasHeader
        height: visible ? implicitHeight : 0
    }

    ListView {
        id: list

        // Rows show where the keyboard is once it has been used.
        property bool keyboardUsed: false
        property SwipeRow openRow: null
        // Under a finger that draws it aside.
        property SwipeRow swipedRow: null

        function keepOpen(row: SwipeRow) {
            if (list.openRow !== null && list.openRow !== row)
                list.openRow.cover();
            list.openRow = row;
        }

        function go(row: int) {
            list.currentIndex = Math.max(0, Math.min(row, list.count - 1));
            list.positionViewAtIndex(list.currentIndex, ListView.Contain);
        }

        readonly property int pageRows: Math.max(1, Math.floor(height / table.outlet.rowHeight) - 1)

        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, table.columnWidth + 2 * Theme.margin)
        model: table.outlet
        focus: true
        activeFocusOnTab: true
        clip: true
        spacing: 6
        topMargin: 8
        bottomMargin: 8
        reuseItems: true
        cacheBuffer: 240
        pixelAligned: true
        highlightFollowsCurrentItem: false
        boundsBehavior: Flickable.DragAndOvershootBounds

        Accessible.role: Accessible.List
        Accessible.name: table.name

        onMovementStarted: keepOpen(null)
        onActiveFocusChanged: if (!activeFocus)
            keyboardUsed = false

        Keys.priority: Keys.BeforeItem
        Keys.onPressed: event => {
            list.keyboardUsed = true;
            event.accepted = true;
            if (event.key === Qt.Key_Down)
                list.go(list.currentIndex + 1);
            else if (event.key === Qt.Key_Up)
                list.go(list.currentIndex - 1);
            else if (event.key === Qt.Key_PageDown)
                list.go(list.currentIndex + list.pageRows);
            else if (event.key === Qt.Key_PageUp)
                list.go(list.currentIndex - list.pageRows);
            else if (event.key === Qt.Key_Home)
                list.go(0);
            else if (event.key === Qt.Key_End)
                list.go(list.count - 1);
            else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
                (list.currentItem as SwipeRow)?.choose();
            else if (event.key === Qt.Key_Delete)
                (list.currentItem as SwipeRow)?.uncoverOrAct();
            else if (event.key === Qt.Key_Escape && list.openRow !== null)
                list.keepOpen(null);
            else
                event.accepted = false;
        }

        RowOrder {
            content: list.contentItem
        }

        ScrollBar {
            view: list
        }

        remove: Transition {
            NumberAnimation {
                property: "opacity"
                to: 0
                duration: Theme.slide
            }
        }
        displaced: Transition {
            NumberAnimation {
                property: "y"
                duration: Theme.slide
                easing.type: Easing.OutCubic
            }
        }
    }

    Label {
        anchors.centerIn: list
        width: Math.min(list.width - 4 * Theme.margin, 320)
        visible: table.outlet.count === 0 && text.length > 0
        text: table.emptyText
        color: Theme.shades.secondary
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        lineHeight: 1.3
    }
}
