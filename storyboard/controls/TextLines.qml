pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Toolkit

// A long text with its pictures: only the pieces in sight are laid out. Enter begins editing, Escape ends it.
Rectangle {
    id: view

    required property UITextView outlet
    // Told to assistive technology.
    property string name: "File Text"
    property string emptyText
    property Shades shades: Theme.shades

    radius: outlet.layer.cornerRadius > 0 ? outlet.layer.cornerRadius : 10
    color: shades.field
    border.width: 1
    border.color: shades.divider

    ListView {
        id: list

        function page(by: int) {
            list.contentY += by * (list.height - 40);
            list.returnToBounds();
        }

        function edit(row: int, atEnd: bool) {
            if (!view.outlet.editable || row < 0 || row >= list.count)
                return;
            list.positionViewAtIndex(row, ListView.Contain);
            (list.itemAtIndex(row) as TextLine)?.beginEditing(atEnd);
        }

        // -1 or 1 from `row`, or to an end of the text.
        function moveCursor(row: int, way: int) {
            const target = way === -2 ? 0 : way === 2 ? list.count - 1 : row + way;
            list.edit(target, way === -1 || way === 2);
        }

        function reveal(line: TextLine) {
            const top = line.y + line.cursor.y - 8;
            const bottom = top + line.cursor.height + 16;
            list.contentY = Math.max(bottom - list.height, Math.min(list.contentY, top));
        }

        anchors.fill: parent
        anchors.margins: 1
        leftMargin: 10
        rightMargin: 10
        topMargin: 8
        bottomMargin: 8
        clip: true
        activeFocusOnTab: true
        model: view.outlet.pieces
        boundsBehavior: Flickable.StopAtBounds

        Keys.onPressed: event => {
            event.accepted = true;
            if (event.key === Qt.Key_Down)
                list.flick(0, -600);
            else if (event.key === Qt.Key_Up)
                list.flick(0, 600);
            else if (event.key === Qt.Key_PageDown || event.key === Qt.Key_Space)
                list.page(1);
            else if (event.key === Qt.Key_PageUp)
                list.page(-1);
            else if (event.key === Qt.Key_Home)
                list.positionViewAtBeginning();
            else if (event.key === Qt.Key_End)
                list.positionViewAtEnd();
            else if (view.outlet.editable && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter))
                list.edit(Math.max(0, list.indexAt(1, list.contentY + list.height / 4)), false);
            else
                event.accepted = false;
        }

        Accessible.role: Accessible.List
        Accessible.name: view.name

        ScrollBar {
            view: list
        }

        delegate: TextLine {
            id: line

            width: list.width - 20
            outlet: view.outlet
            name: view.name
            shades: view.shades
            onCursorMoved: list.reveal(line)
            onCursorLeft: way => list.moveCursor(line.index, way)
        }
    }

    FocusRing {
        visible: list.activeFocus
        tint: view.shades.accent
    }

    Label {
        anchors.centerIn: parent
        visible: list.count === 0
        text: view.emptyText
        color: view.shades.secondary
    }
}
