import QtQuick

// Back, title and the buttons of a screen. The title stands in the middle where the buttons leave it room.
Rectangle {
    id: bar

    property string title
    property bool canGoBack: false
    // Stands in the back button's place.
    property BarButton leadingItem: null
    default property alias items: buttons.data

    signal backRequested

    implicitHeight: Theme.barHeight
    color: Theme.shades.surface

    onLeadingItemChanged: {
        if (leadingItem === null)
            return;
        leadingItem.parent = bar;
        leadingItem.x = 4;
        leadingItem.anchors.verticalCenter = bar.verticalCenter;
    }

    BarButton {
        id: back

        anchors.left: parent.left
        anchors.leftMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        visible: bar.canGoBack
        title: "Back"
        image: "chevron.left"
        onTriggered: bar.backRequested()
    }

    Label {
        id: heading

        readonly property Item leading: bar.leadingItem !== null ? bar.leadingItem : back
        readonly property real from: leading.visible ? leading.x + leading.width + 4 : Theme.margin
        readonly property real to: buttons.x - 4

        x: Math.max(from, Math.min((bar.width - width) / 2, to - width))
        width: Math.min(implicitWidth, to - from)
        anchors.verticalCenter: parent.verticalCenter
        text: bar.title
        elide: Text.ElideRight
        font.pixelSize: Theme.headline
        font.bold: true

        Accessible.role: Accessible.Heading
    }

    Row {
        id: buttons

        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.shades.divider
    }
}
