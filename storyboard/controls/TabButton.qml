import QtQuick
import Marrowvale.Toolkit

// A tab of a tab bar: its symbol above its title.
Item {
    id: tab

    required property UITabBarItem item
    property bool selected: false
    readonly property color tint: selected ? Theme.shades.accent : Theme.shades.secondary

    signal chosen

    implicitHeight: 56
    activeFocusOnTab: true

    Accessible.role: Accessible.PageTab
    Accessible.name: item.title
    Accessible.selected: selected
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: chosen()

    Keys.onReturnPressed: chosen()
    Keys.onEnterPressed: chosen()
    Keys.onSpacePressed: chosen()

    Symbol {
        id: symbol

        anchors.horizontalCenter: parent.horizontalCenter
        y: 8
        visible: tab.item.image.length > 0
        name: tab.item.image
        color: tab.tint
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        y: symbol.visible ? 34 : (parent.height - height) / 2
        text: tab.item.title
        textFormat: Text.PlainText
        color: tab.tint
        font.family: Theme.fontFamily
        font.pixelSize: 12
        font.bold: tab.selected
    }

    TapHandler {
        property bool isMeant: false

        onPressedChanged: if (pressed)
            isMeant = Modality.lets(tab)
        onTapped: if (isMeant)
            tab.chosen()
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    FocusRing {
        anchors.margins: 2
    }
}
