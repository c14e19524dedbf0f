import QtQuick
import Marrowvale.Toolkit

// What stands in the keyboard's place while a field with an input view is edited: its toolbar and the input view.
FocusScope {
    id: panel

    // The field being edited; null: none.
    required property UITextField field
    readonly property bool wanted: field !== null && field.inputView !== null
    // Stays while the panel slides away.
    property UITextField shownField: null
    readonly property UIView shownView: shownField !== null ? shownField.inputView : null
    property real openness: wanted ? 1 : 0

    // A key that the field has no use for: Alt+Down enters the panel, the input view may know others.
    function turn(event) {
        if (!panel.wanted)
            return;
        if (event.key === Qt.Key_Down && event.modifiers & Qt.AltModifier)
            panel.nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason);
        else
            (loader.item as InputView)?.turn(event);
    }

    function keepField() {
        if (panel.wanted)
            panel.shownField = panel.field;
    }

    function load() {
        const values = {
            picker: panel.shownView
        };
        if (panel.shownView as UIDatePicker)
            loader.setSource("DatePanel.qml", values);
        else if (panel.shownView as UIPickerView)
            loader.setSource("PickerPanel.qml", values);
    }

    onFieldChanged: keepField()
    onWantedChanged: {
        keepField();
        if (!panel.wanted)
            panel.focus = false;
    }
    onShownViewChanged: load()
    onFocusChanged: FirstResponder.panelFocused = focus
    // Opened again it starts afresh.
    onOpennessChanged: if (openness === 0)
        panel.shownField = null

    height: openness * content.height
    visible: openness > 0
    clip: true

    Behavior on openness {
        NumberAnimation {
            duration: Theme.slide
            easing.type: Easing.OutCubic
        }
    }

    Column {
        id: content

        width: parent.width

        Rectangle {
            width: parent.width
            height: 1
            color: Theme.shades.divider
        }

        InputToolbar {
            width: parent.width
            visible: toolbar !== null
            toolbar: panel.shownField !== null ? panel.shownField.inputAccessoryView : null
        }

        Rectangle {
            width: parent.width
            height: loader.height
            color: panel.shownView !== null && panel.shownView.backgroundColor.valid ? panel.shownView.backgroundColor : Theme.shades.surface

            // A tap beside the wheels is not one on the page.
            MouseArea {
                anchors.fill: parent
            }

            Loader {
                id: loader

                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(parent.width, 480)
            }
        }
    }
}
