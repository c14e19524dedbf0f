import QtQuick
import Marrowvale.Toolkit

// A date picker in the style that its outlet prefers. On a background of its own it is light in both styles.
InputView {
    id: panel

    required property UIDatePicker picker
    readonly property int style: picker !== null ? picker.preferredDatePickerStyle : UIDatePicker.Automatic
    readonly property Shades shades: picker !== null && picker.backgroundColor.valid ? Theme.paper : Theme.shades

    // A day or a month on or back; a year with the control key.
    function turn(event) {
        const days = event.key === Qt.Key_Down ? 1 : event.key === Qt.Key_Up ? -1 : 0;
        const months = event.key === Qt.Key_PageDown ? 1 : event.key === Qt.Key_PageUp ? -1 : 0;
        event.accepted = days !== 0 || months !== 0;
        if (event.accepted)
            panel.shift(days, event.modifiers & Qt.ControlModifier ? 12 * months : months);
    }

    function shift(days: int, months: int) {
        const monthIndex = 12 * panel.picker.year + panel.picker.month - 1 + months;
        const target = new Date(2000, 0, 1);
        target.setFullYear(panel.picker.year, panel.picker.month - 1, panel.picker.day + days);
        if (months !== 0)
            panel.picker.pick(Math.floor(monthIndex / 12), monthIndex % 12 + 1, panel.picker.day);
        else
            panel.picker.pick(target.getFullYear(), target.getMonth() + 1, target.getDate());
    }

    function load() {
        const values = {
            picker: panel.picker
        };
        if (panel.style === UIDatePicker.Inline)
            loader.setSource("MonthCalendar.qml", values);
        else if (panel.style === UIDatePicker.Compact)
            loader.setSource("CompactDate.qml", values);
        else
            loader.setSource("DateWheels.qml", values);
    }

    implicitHeight: Math.max(picker !== null ? picker.height : 0, loader.implicitHeight)
    // The style can change while the panel is open.
    onStyleChanged: load()
    Component.onCompleted: load()

    Loader {
        id: loader

        width: parent.width
    }

    Binding {
        target: loader.item as DateView
        property: "shades"
        value: panel.shades
    }

    Connections {
        target: loader.item as DateView

        function onShifted(days, months) {
            panel.shift(days, months);
        }
    }
}
