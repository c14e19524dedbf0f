import QtQuick
import QtQuick.Templates as T

// What slides in from below, over the middle of the window.
T.Popup {
    id: sheet

    // Of the sheet, where the window has it.
    property int broadest: 520
    readonly property Item area: T.Overlay.overlay
    property real openness: 0

    parent: area
    x: area !== null ? (area.width - width) / 2 : 0
    y: area !== null ? area.height - height * openness : 0
    width: area !== null ? Math.min(area.width, broadest) : 0
    modal: true
    focus: true
    onClosed: destroy()

    T.Overlay.modal: Backdrop {}

    enter: Transition {
        NumberAnimation {
            target: sheet
            property: "openness"
            to: 1
            duration: Theme.slide
            easing.type: Easing.OutCubic
        }
    }
    exit: Transition {
        NumberAnimation {
            target: sheet
            property: "openness"
            to: 0
            duration: Theme.slide
            easing.type: Easing.InCubic
        }
    }

    background: Item {
        clip: true

        Rectangle {
            width: parent.width
            height: parent.height + radius
            radius: 18
            color: Theme.shades.surface
        }
    }
}
