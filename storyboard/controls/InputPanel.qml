pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Toolkit

// What stands in the keyboard's place while a field with an input view is edited: its toolbar and the input view.
FocusScope {
    id: panel

    required property UITextField field
    readonly property UIView view: field !== null ? field.inputView : null
    // Stays while the panel slides away.
    property UIView shownView: null
    property real openness: view !== null ? 1 : 0

    function turn(event) {
        if (panel.view !== null)
            (loader.item as InputView)?.turn(event);
    }

    onViewChanged: if (view !== null)
        shownView = view
    onFocusChanged: FirstResponder.panelFocused = focus
    onOpennessChanged: if (openness === 0)
        focus = false

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
            toolbar: panel.field !== null ? panel.field.inputAccessoryView : null
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
                sourceComponent: {
                    if (panel.shownView as UIDatePicker)
                        return datePanel;
                    return panel.shownView as UIPickerView ? pickerPanel : null;
                }
            }
        }
    }

    Component {
        id: datePanel

        DatePanel {
            picker: panel.shownView as UIDatePicker
        }
    }

    Component {
        id: pickerPanel

        PickerPanel {
            picker: panel.shownView as UIPickerView
        }
    }
}
