pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Marrowvale.Toolkit

// A long text to read: it is cut into pieces, and only those in sight are laid out.
Rectangle {
    id: view

    required property UITextView outlet
    property string emptyText
    readonly property int longestPiece: 2000
    property var pieces: []
    property string shownText

    function show() {
        if (view.outlet.text === view.shownText)
            return;
        view.shownText = view.outlet.text;
        view.pieces = view.cut(view.shownText);
    }

    // Between lines where there are any.
    function cut(text: string): var {
        const made = [];
        for (let from = 0; from < text.length;) {
            const piece = text.slice(from, from + view.longestPiece);
            const lineEnd = from + piece.length < text.length ? piece.lastIndexOf("\n") : -1;
            made.push(lineEnd < 0 ? piece : piece.slice(0, lineEnd));
            from += lineEnd < 0 ? piece.length : lineEnd + 1;
        }
        return made;
    }

    radius: outlet.layer.cornerRadius > 0 ? outlet.layer.cornerRadius : 10
    color: Theme.shades.field
    border.width: 1
    border.color: Theme.shades.divider

    Component.onCompleted: show()

    Connections {
        target: view.outlet

        function onChanged() {
            view.show();
        }
    }

    ListView {
        anchors.fill: parent
        anchors.margins: 1
        leftMargin: 10
        rightMargin: 10
        topMargin: 8
        bottomMargin: 8
        clip: true
        activeFocusOnTab: true
        model: view.pieces.length
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds

        Keys.onDownPressed: flick(0, -600)
        Keys.onUpPressed: flick(0, 600)

        Accessible.role: Accessible.List
        Accessible.name: "File Text"

        T.ScrollBar.vertical: ScrollBar {}

        delegate: Label {
            required property int index

            width: ListView.view.width - 20
            text: view.pieces[index]
            wrapMode: Text.WrapAnywhere
            font.pixelSize: Theme.small
        }
    }

    Label {
        anchors.centerIn: parent
        visible: view.shownText.length === 0
        text: view.emptyText
        color: Theme.shades.secondary
    }
}
