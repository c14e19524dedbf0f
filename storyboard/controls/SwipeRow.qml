pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Toolkit

// A row of a table. Drawn to the left, held or right-clicked, it uncovers its swipe actions; drawn far enough, it
// does the first of them. What the user began on one record never ends on another: the row closes when it gets
// another one, and a tap or a hold counts only on the record that was pressed.
Item {
    id: row

    required property real rowKey
    required property int index
    required property UITableView table
    property string spokenName
    default property alias content: face.data

    readonly property int actionWidth: 88
    readonly property bool isOpen: face.x < 0
    readonly property bool isMarked: ListView.isCurrentItem && view !== null && view.activeFocus && view.keyboardUsed
    readonly property var view: ListView.view
    // While a finger draws a row aside, no other takes part, and a second finger taps none.
    readonly property bool reacts: view === null || view.swipedRow === null || view.swipedRow === row
    property real pressedKey: 0
    // The finger that is down has drawn it aside: a second one on the same row taps nothing.
    property bool drawn: false
    property swipeActionsConfiguration actions
    property swipeActionsConfiguration noActions

    // Returns whether there are any.
    function takeActions(): bool {
        row.actions = row.table.swipeActions(row.rowKey);
        return row.actions.titles.length > 0;
    }

    function uncover() {
        if (!row.takeActions())
            return;
        row.view.keepOpen(row);
        slide.to = -row.actionWidth * row.actions.titles.length;
        slide.restart();
    }

    function cover() {
        slide.to = 0;
        slide.restart();
    }

    // At once, because the record that was drawn aside is gone.
    function close() {
        slide.stop();
        face.x = 0;
        row.actions = row.noActions;
    }

    function uncoverOrAct() {
        if (row.isOpen)
            row.act(0);
        else
            row.uncover();
    }

    function act(action: int) {
        row.view.openRow = null;
        row.table.performSwipeAction(row.actions, action);
    }

    function choose() {
        row.table.selectRow(row.rowKey);
    }

    function activate() {
        if (row.isOpen)
            row.cover();
        else
            row.choose();
    }

    onRowKeyChanged: close()

    width: ListView.view !== null ? ListView.view.width : 0
    height: table.rowHeight

    Accessible.role: Accessible.ListItem
    Accessible.name: spokenName
    Accessible.focusable: true
    Accessible.focused: isMarked
    Accessible.onPressAction: activate()

    // A row out of use is only not drawn: assistive technology would still find it.
    ListView.onPooled: {
        visible = false;
        close();
    }
    // A row in use again shows no trace of the one before.
    ListView.onReused: {
        visible = true;
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
            model: row.isOpen ? row.actions.titles.length : 0

            SwipeButton {
                required property int index

                width: Math.max(row.actionWidth, index === 0 ? -face.x : 0) - 6
                height: row.height
                title: row.actions.titles[index] ?? ""
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
            enabled: row.reacts
            onPressedChanged: if (pressed) {
                row.view.keyboardUsed = false;
                row.pressedKey = row.drawn || !Modality.lets(row) ? 0 : row.rowKey;
            }
            onTapped: if (row.pressedKey === row.rowKey) {
                row.view.currentIndex = row.index;
                row.activate();
            }
            onLongPressed: if (row.pressedKey === row.rowKey)
                row.uncover()
        }

        TapHandler {
            // A finger has no buttons: every tap of one would be taken for a right click.
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            acceptedButtons: Qt.RightButton
            enabled: row.reacts
            onTapped: if (Modality.lets(row))
                row.uncover()
        }

        PointHandler {
            onActiveChanged: if (!active)
                row.drawn = false
        }

        DragHandler {
            id: drag

            property real from: 0

            target: null
            yAxis.enabled: false
            dragThreshold: 12
            enabled: row.reacts
            onActiveChanged: {
                row.view.swipedRow = active ? row : null;
                if (active) {
                    row.drawn = true;
                    if (Modality.lets(row))
                        row.takeActions();
                    else
                        row.close();
                    row.view.keepOpen(row);
                    from = face.x;
                } else if (face.x < -0.6 * row.width) {
                    row.act(0);
                } else if (face.x < -row.actionWidth / 2) {
                    row.uncover();
                } else {
                    row.cover();
                }
            }
            onActiveTranslationChanged: if (active && row.actions.titles.length > 0)
                face.x = Math.max(-row.width, Math.min(0, from + activeTranslation.x))
        }
    }
}
