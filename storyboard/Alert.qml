pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Marrowvale.Controls
import Marrowvale.Toolkit

// A message with buttons in the middle of the window. The alert itself is gone while this fades: its texts are kept.
T.Popup {
    id: popup

    required property UIAlertController alert
    property string heading
    property string message
    property var actionTitles: []

    function choose(index: int) {
        if (popup.alert !== null)
            popup.alert.choose(index);
    }

    anchors.centerIn: T.Overlay.overlay
    width: Math.min(320, (T.Overlay.overlay?.width ?? 368) - 48)
    height: implicitContentHeight
    modal: true
    focus: true
    closePolicy: T.Popup.NoAutoClose
    onClosed: destroy()

    Component.onCompleted: {
        heading = alert.title;
        message = alert.message;
        actionTitles = alert.actionTitles;
        open();
    }

    T.Overlay.modal: Backdrop {}

    enter: Transition {
        NumberAnimation {
            property: "scale"
            from: 1.12
            to: 1
            duration: Theme.brief
            easing.type: Easing.OutCubic
        }
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.brief
        }
    }
    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Theme.brief
        }
    }

    background: Rectangle {
        radius: 16
        color: Theme.shades.surface
    }

    contentItem: AlertCard {
        focus: true
        heading: popup.heading
        message: popup.message
        actionTitles: popup.actionTitles
        onChosen: index => popup.choose(index)

        Keys.onEscapePressed: popup.choose(popup.alert !== null ? popup.alert.cancelIndex : -1)
    }
}
