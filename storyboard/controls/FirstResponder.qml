pragma Singleton

import QtQuick
import Marrowvale.Toolkit

// What the user is typing into: an outlet and the element that shows it. Moving on to the panel that stands in the
// keyboard's place doesn't end editing.
QtObject {
    id: responder

    property UITextInput current: null
    property Item input: null
    property bool panelFocused: false

    function begin(outlet: UITextInput, element: Item) {
        const before = responder.current;
        responder.current = outlet;
        responder.input = element;
        if (before !== null && before !== outlet)
            before.resignFirstResponder();
        outlet.becomeFirstResponder();
    }

    function end(outlet: UITextInput) {
        if (responder.current === outlet)
            responder.current = null;
    }

    function settle() {
        if (responder.current !== null && !responder.panelFocused && !responder.input?.focus)
            responder.current.resignFirstResponder();
    }

    // Whether editing goes on shows only once the focus has arrived elsewhere.
    readonly property Timer settling: Timer {
        interval: 0
        onTriggered: responder.settle()
    }

    onPanelFocusedChanged: settling.start()
}
