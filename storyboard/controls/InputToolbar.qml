pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Toolkit

// The bar above an input view, in the colours that its outlet says.
Rectangle {
    id: bar

    required property UIToolbar toolbar
    readonly property var items: toolbar?.items ?? []
    readonly property int spaces: items.filter(item => item.flexibleSpace).length

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

        readonly property real taken: {
            let sum = 0;
            for (let i = 0; i < children.length; ++i)
                sum += children[i].naturalWidth ?? 0;
            return sum;
        }

        Repeater {
            id: buttons

            model: bar.items.length

            BarButton {
                required property int index
                readonly property UIBarButtonItem item: bar.items[index]
                readonly property real naturalWidth: item.flexibleSpace ? 0 : implicitWidth

                width: item.flexibleSpace ? (row.width - row.taken) / bar.spaces : implicitWidth
                outlet: item
                enabled: !item.flexibleSpace
                prominent: index === bar.items.length - 1
                tint: bar.toolbar.tintColor.valid ? bar.toolbar.tintColor : Theme.shades.accent
                Accessible.ignored: item.flexibleSpace
                onTriggered: item.tap()
            }
        }
    }
}
