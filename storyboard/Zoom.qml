pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Controls
import Marrowvale.Editing
import Marrowvale.Toolkit

// Two fingers or the mouse wheel scale, one finger or the mouse moves; plus, minus and the arrow keys do the same.
Scene {
    id: root

    required property ZoomViewController screen
    readonly property real keyStep: 24

    controller: screen
    title: "Front Cover"

    barItems: BarButton {
        outlet: root.screen.ShareButton
        action: "shareButtonClicked"
    }

    Item {
        id: ground

        anchors.fill: parent
        clip: true
        focus: true
        onWidthChanged: root.screen.viewDidLayoutSubviews(width)

        Keys.onPressed: event => {
            const pan = root.screen.panRec;
            const pinch = root.screen.pinchRec;
            if (event.key === Qt.Key_Left)
                pan.recognize(-root.keyStep, 0);
            else if (event.key === Qt.Key_Right)
                pan.recognize(root.keyStep, 0);
            else if (event.key === Qt.Key_Up)
                pan.recognize(0, -root.keyStep);
            else if (event.key === Qt.Key_Down)
                pan.recognize(0, root.keyStep);
            else if (event.key === Qt.Key_Plus)
                pinch.recognize(1.25);
            else if (event.key === Qt.Key_Minus)
                pinch.recognize(0.8);
            else
                return;
            event.accepted = true;
        }

        Item {
            id: view

            property UICollectionView outlet: root.screen.ZoomCollectionView

            x: (ground.width - width) / 2 + outlet.center.x
            y: (ground.height - height) / 2 + outlet.center.y
            width: outlet.itemSize.width
            height: outlet.itemSize.height
            scale: outlet.scale

            Repeater {
                model: view.outlet.cells

                Rectangle {
                    id: cell

                    required property zoomCollectionViewCell modelData

                    anchors.fill: parent
                    radius: modelData.layer.cornerRadius
                    color: Theme.shades.field
                    border.width: modelData.layer.borderWidth
                    border.color: modelData.layer.borderColor

                    Accessible.role: Accessible.Graphic
                    Accessible.name: root.title

                    ImageItem {
                        anchors.fill: parent
                        anchors.margins: cell.border.width
                        image: cell.modelData.ZoomImage // qmllint disable
                        radius: cell.radius - cell.border.width
                        fillMode: ImageItem.Fit
                    }
                }
            }
        }

        // One area for both gestures: of two handlers, one takes over the other's fingers at the place where they
        // touch the window, and the picture jumps there.
        MultiPointTouchArea {
            property var last: []

            // How far the fingers are from their middle, in pixels. Fingertips that touch count as this far apart.
            function spread(fingers): real {
                const x = fingers.reduce((sum, finger) => sum + finger.x, 0) / fingers.length;
                const y = fingers.reduce((sum, finger) => sum + finger.y, 0) / fingers.length;
                return Math.max(10, fingers.reduce((sum, finger) => sum + Math.hypot(finger.x - x, finger.y - y), 0) / fingers.length);
            }

            // A finger that comes or goes moves nothing.
            function follow(fingers) {
                const sameFingers = fingers.length === last.length && fingers.every((finger, index) => finger.id === last[index].id);
                if (sameFingers && fingers.length === 1)
                    root.screen.panRec.recognize(fingers[0].x - last[0].x, fingers[0].y - last[0].y);
                else if (sameFingers && fingers.length > 1)
                    root.screen.pinchRec.recognize(spread(fingers) / spread(last));
                last = fingers;
            }

            anchors.fill: parent
            onTouchUpdated: touchPoints => follow(Array.from(touchPoints).filter(point => point.pressed).map(point => ({
                            id: point.pointId,
                            x: point.x,
                            y: point.y
                        })).sort((one, other) => one.id - other.id))
        }

        WheelHandler {
            target: null
            onWheel: event => root.screen.pinchRec.recognize(Math.pow(1.1, event.angleDelta.y / 120))
        }
    }
}
