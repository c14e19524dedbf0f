import QtQuick
import Marrowvale.Controls
import Marrowvale.Toolkit

// What buttons share: tapping, the keyboard, assistive technology. A tap doesn't take the keyboard away from where
// it is.
ButtonItem {
    id: pressable

    property UIButton outlet: null
    property string action
    property string segue
    // Shown where the outlet has no title of its own.
    property string title
    readonly property string shownTitle: outlet !== null && outlet.title.length > 0 ? outlet.title : title
    readonly property bool available: outlet === null || outlet.enabled
    readonly property bool down: area.pressed && area.containsMouse
    readonly property bool hovered: area.pointed && area.containsMouse

    signal triggered
    // A tap on a button that has a menu.
    signal menuAsked(menu: UIMenu)

    function press() {
        if (!pressable.enabled)
            return;
        if (pressable.outlet !== null && pressable.outlet.menu !== null)
            pressable.menuAsked(pressable.outlet.menu);
        else
            pressable.triggered();
    }

    enabled: available
    activeFocusOnTab: true
    onPressAsked: press()

    Accessible.role: Accessible.Button
    Accessible.name: outlet !== null && outlet.accessibilityLabel.length > 0 ? outlet.accessibilityLabel : shownTitle

    Keys.onReturnPressed: event => press()
    Keys.onEnterPressed: event => press()
    Keys.onSpacePressed: event => press()

    MouseArea {
        id: area

        // The pointer moved over it. A button that came or passed below a resting pointer isn't pointed at.
        property bool pointed: false

        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onPositionChanged: pointed = true
        onExited: pointed = false
        onClicked: pressable.press()
    }
}
