import QtQuick
import QtQuick.Window

// A button of a navigation bar or a toolbar: a symbol, or a title where it has none. With a menu it opens that.
Pressable {
    id: button

    property color tint: Theme.shades.accent
    // A symbol for a button without an outlet.
    property string image
    // The most important button of its bar.
    property bool prominent: false
    readonly property string shownImage: outlet !== null && outlet.image.length > 0 ? outlet.image : image

    implicitWidth: Math.max(Theme.target, shownImage.length > 0 ? 0 : label.implicitWidth + 16)
    implicitHeight: Theme.target
    opacity: !enabled ? 0.4 : down ? 0.5 : 1
    // By address: popups are loaded when the first is asked for.
    onMenuAsked: menu => Qt.createComponent("MenuPopup.qml").createObject(button, {
        menu: menu,
        focusedBefore: button.Window.activeFocusItem
    })

    Rectangle {
        anchors.fill: parent
        anchors.margins: 2
        radius: 10
        color: button.tint
        opacity: button.hovered && button.enabled ? 0.1 : 0
    }

    Symbol {
        anchors.centerIn: parent
        name: button.shownImage
        color: button.tint
    }

    Text {
        id: label

        anchors.centerIn: parent
        visible: button.shownImage.length === 0
        text: button.shownTitle
        color: button.tint
        textFormat: Text.PlainText
        font.family: Theme.fontFamily
        font.pixelSize: Theme.headline
        font.bold: button.prominent
    }

    FocusRing {
        anchors.margins: 1
        tint: button.tint
    }
}
