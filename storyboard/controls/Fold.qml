import QtQuick
import Marrowvale.Toolkit

// A column that folds away while its outlet is hidden.
Item {
    id: fold

    required property UIView outlet
    default property alias content: column.data
    property real openness: outlet.hidden ? 0 : 1

    implicitHeight: column.height * openness
    height: implicitHeight
    visible: openness > 0
    opacity: openness
    clip: openness < 1

    Behavior on openness {
        NumberAnimation {
            duration: fold.outlet.hidingDuration * 1000
            easing.type: Easing.OutCubic
        }
    }

    Column {
        id: column

        width: parent.width
    }
}
