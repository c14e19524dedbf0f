pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Toolkit

// The bar above an input view, in the colours that its outlet says.
Rectangle {
    id: bar

    required property UIToolbar toolbar
    readonly property var items: toolbar?.items ?? []
    readonly property color tint: toolbar !== null && toolbar.tintColor.valid ? toolbar.tintColor : Theme.shades.accent
    // A light tint is hard to read on a light bar: there it is the buttons' ground.
    readonly property bool tintBelow: toolbar !== null && !toolbar.blackStyle && toolbar.tintColor.valid
    // Flexible spaces share what the buttons leave.
    readonly property int spaces: items.filter(item => item.flexibleSpace).length
    readonly property real taken: {
        let sum = 0;
        for (let i = 0; i < row.children.length; ++i)
            sum += (row.children[i] as ToolbarButton)?.naturalWidth ?? 0;
        return sum;
    }

    implicitHeight: Theme.target
    color: {
        if (toolbar === null || !toolbar.blackStyle)
            return Theme.shades.surface;
        return toolbar.translucent ? "#e61c2329" : "#1c2329";
    }

    Row {
        id: row

        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 8

        Repeater {
            model: bar.items.length

            ToolbarButton {
                required property int index

                item: bar.items[index] ?? null
                spaceWidth: (row.width - bar.taken) / bar.spaces
                prominent: index === bar.items.length - 1
                tint: bar.tintBelow ? Theme.night.accentText : bar.tint
                ground: bar.tintBelow ? bar.tint : "transparent"
            }
        }
    }
}
