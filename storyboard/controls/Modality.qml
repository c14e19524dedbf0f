pragma Singleton

import QtQuick
import QtQuick.Window

// Qt Quick lets pointer handlers see every press, even one that a popup above them has taken.
QtObject {
    function topmostAbove(item: Item): Item {
        let top = item;
        while (top.parent !== null && top.parent.parent !== null)
            top = top.parent;
        return top;
    }

    // Whether a press may mean the item: no popup is open, because that would have the keyboard. Ask when the press
    // begins. A popup that it closes has let the keyboard go by its end.
    function lets(item: Item): bool {
        const focused = item.Window.activeFocusItem;
        return focused === null || topmostAbove(focused) === topmostAbove(item);
    }
}
