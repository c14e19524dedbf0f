pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Marrowvale.Toolkit

// The menu of a button, below it and within the window; gone once closed.
T.Popup {
    id: popup

    required property UIMenu menu
    // Gets the keyboard back.
    required property Item focusedBefore

    x: parent.width - width
    y: parent.height + 4
    width: 240
    height: implicitContentHeight
    margins: 8
    modal: true
    focus: true
    visible: true
    transformOrigin: T.Popup.TopRight
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToHide: popup.focusedBefore?.forceActiveFocus()
    onClosed: destroy()

    enter: Transition {
        NumberAnimation {
            properties: "opacity,scale"
            from: 0.4
            to: 1
            duration: Theme.brief
            easing.type: Easing.OutCubic
        }
    }
    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Theme.brief
        }
    }

    T.Overlay.modal: Rectangle {
        color: "#20000000"
    }

    background: Rectangle {
        radius: 14
        color: Theme.shades.surface
        border.color: Theme.shades.divider
    }

    contentItem: MenuList {
        heading: popup.menu.title
        titles: popup.menu.actionTitles
        focus: true
        onChosen: index => {
            const menu = popup.menu;
            popup.close();
            menu.choose(index);
        }
    }
}
