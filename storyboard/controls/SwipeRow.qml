pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Toolkit

// A row of a table. Drawn to the left, held or right-clicked, it uncovers its swipe actions; drawn far enough, it
// does the first of them.
Item {
    id: row

    required property int index
    required property UITableView table
    property string spokenName
    default property alias content: face.data

    readonly property int actionWidth: 88
    readonly property bool isOpen: face.x < 0
    readonly property bool isMarked: ListView.isCurrentItem && view !== null && view.activeFocus && view.keyboardUsed
    readonly property var view: ListView.view
    property var actions: []

    function uncover() {
        row.actions = row.table.swipeActionTitles(row.index);
        if (row.actions.length === 0)
            return;
        row.view.keepOpen(row);
        slide.to = -row.actionWidth * row.actions.length;
        slide.restart();
    }

    function cover() {
        slide.to = 0;
        slide.restart();
    }

    function uncoverOrAct() {
        if (row.isOpen)
            row.act(0);
        else
            row.uncover();
    }

    function act(action: int) {
        row.view.openRow = null;
        row.table.performSwipeAction(row.index, action);
    }

    function activate() {
        if (row.isOpen)
            row.cover();
        else
            row.table.select(row.index);
    }

    width: ListView.view !== null ? ListView.view.width : 0
    height: table.rowHeight

    Accessible.role: Accessible.ListItem
    Accessible.name: spokenName
    Accessible.focusable: true
    Accessible.focused: isMarked
    Accessible.onPressAction: activate()

    // A row out of use is only not drawn: assistive technology would still find it.
    ListView.onPooled: visible = false
    // A row in use again shows no trace of the one before.
    ListView.onReused: {
        visible = true;
        slide.stop();
        face.x = 0;
        opacity = 1;
    }

    NumberAnimation {
        id: slide

        target: face
        property: "x"
        duration: Theme.brief
        easing.type: Easing.OutCubic
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        height: parent.height
        visible: row.isOpen

        Repeater {
            model: row.isOpen ? row.actions.length : 0

            SwipeButton {
                required property int index

                width: Math.max(row.actionWidth, index === 0 ? -face.x : 0) - 6
                height: row.height
                title: row.actions[index]
                onTriggered: row.act(index)
            }
        }
    }

    Item {
        id: face

        width: parent.width
        height: parent.height

        // Handlers, not a MouseArea: that would keep a finger from drawing the list along.
        TapHandler {
            onPressedChanged: if (pressed)
                row.view.keyboardUsed = false
            onTapped: {
                row.view.currentIndex = row.index;
                row.activate();
            }
            onLongPressed: row.uncover()
        }

        TapHandler {
            // A finger has no buttons: it would count as one.
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            acceptedButtons: Qt.RightButton
            onTapped: row.uncover()
        }

        DragHandler {
            id: drag

            property real from: 0

            target: null
            yAxis.enabled: false
            dragThreshold: 12
            onActiveChanged: {
                if (active) {
                    row.actions = row.table.swipeActionTitles(row.index);
                    row.view.keepOpen(row);
                    from = face.x;
                } else if (row.actions.length > 0 && face.x < -0.6 * row.width) {
                    row.act(0);
                } else if (face.x < -row.actionWidth / 2) {
                    row.uncover();
                } else {
                    row.cover();
                }
            }
            onActiveTranslationChanged: if (active && row.actions.length > 0)
                face.x = Math.max(-row.width, Math.min(0, from + activeTranslation.x))
        }
    }
}
