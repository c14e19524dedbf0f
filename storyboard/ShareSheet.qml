pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Marrowvale.Controls
import Marrowvale.Services

// A sheet from below: what is shared, and what the device can do with it. Closing it chooses nothing.
T.Popup {
    id: sheet

    required property UIActivityViewController activities
    property string preview
    property var titles: []
    property var symbols: []
    readonly property Item area: T.Overlay.overlay
    property real openness: 0

    function choose(index: int) {
        if (sheet.activities !== null)
            sheet.activities.choose(index);
    }

    parent: area
    x: area !== null ? (area.width - width) / 2 : 0
    y: area !== null ? area.height - height * openness : 0
    width: area !== null ? Math.min(area.width, 520) : 0
    height: implicitContentHeight
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    Component.onCompleted: {
        preview = activities.preview;
        titles = activities.activityTitles;
        symbols = activities.activitySymbols;
        open();
    }
    onClosed: destroy()
    onAboutToHide: if (sheet.activities !== null)
        sheet.activities.cancel()

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

    contentItem: SharePanel {
        focus: true
        preview: sheet.preview
        titles: sheet.titles
        symbols: sheet.symbols
        onChosen: index => sheet.choose(index)
        onCancelled: sheet.close()
    }
}
