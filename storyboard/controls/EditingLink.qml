import QtQuick
import Marrowvale.Toolkit

// Keeps a text element and its outlet alike. What the user types passes the outlet first, what code sets shows
// up, and neither is taken for the other. The element reports typing by `typed` and its focus by `focusMoved`.
Connections {
    id: link

    required property UITextInput outlet
    // A TextInput or a TextEdit.
    required property var input
    property string shownText
    property bool showing: false

    function show() {
        const length = link.input.length;
        const cursor = link.input.cursorPosition;
        link.showing = true;
        link.input.text = link.outlet.text;
        link.showing = false;
        link.shownText = link.outlet.text;
        // The element may show fewer characters than the outlet has.
        const surplus = length - link.input.length;
        link.input.cursorPosition = Math.max(0, Math.min(cursor - surplus, link.input.length));
    }

    function typed() {
        if (link.showing)
            return;
        if (link.outlet.edit(link.input.text))
            link.shownText = link.outlet.text;
        else
            link.show();
    }

    function focusMoved() {
        if (link.input.focus)
            FirstResponder.begin(link.outlet, link.input);
        else
            FirstResponder.settling.start();
    }

    function onChanged() {
        if (link.outlet.text !== link.shownText)
            link.show();
        if (!link.outlet.editing)
            link.leave();
        else if (FirstResponder.current !== link.outlet)
            link.input.forceActiveFocus();
    }

    function leave() {
        FirstResponder.end(link.outlet);
        link.input.focus = false;
    }

    target: link.outlet
    Component.onCompleted: link.show()
}
