import QtQuick

// Along the right edge of a list or a page: thin while it scrolls, wide enough to grab under the pointer. The wheel
// and the keys do the same, so that assistive technology needs to know nothing of it.
Item {
    id: bar

    required property Flickable view
    readonly property real part: view.visibleArea.heightRatio
    readonly property real length: Math.min(height, Math.max(56, part * height))
    // How far the view is scrolled, from 0 to 1.
    readonly property real progress: part < 1 ? Math.max(0, Math.min(1, view.visibleArea.yPosition / (1 - part))) : 0

    function scrollTo(progress: real) {
        const first = view.originY - view.topMargin;
        const last = view.originY + view.contentHeight + view.bottomMargin - view.height;
        view.contentY = first + Math.max(0, Math.min(1, progress)) * (last - first);
    }

    parent: view
    anchors.right: parent.right
    width: 14
    height: parent.height
    visible: part < 1

    Accessible.ignored: true

    Rectangle {
        id: thumb

        x: 3
        y: bar.progress * (bar.height - bar.length) + 3
        width: 8
        height: bar.length - 6
        radius: width / 2
        color: Theme.shades.secondary
        opacity: area.pressed ? 0.9 : area.containsMouse ? 0.7 : bar.view.moving ? 0.45 : 0

        Behavior on opacity {
            NumberAnimation {
                duration: Theme.slide
            }
        }
    }

    MouseArea {
        id: area

        // Where the thumb is held, from its top.
        property real hold

        function drag(y: real) {
            bar.scrollTo((y - hold) / (bar.height - bar.length));
        }

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        onPressed: mouse => {
            const from = mouse.y - bar.progress * (bar.height - bar.length);
            hold = from >= 0 && from <= bar.length ? from : bar.length / 2;
            drag(mouse.y);
        }
        onPositionChanged: mouse => {
            if (pressed)
                drag(mouse.y);
        }
    }
}
