import QtQuick
import Marrowvale.Toolkit

// An item of a toolbar: a button, or a space of the width that is left for it.
BarButton {
    required property UIBarButtonItem item
    property real spaceWidth: 0
    readonly property bool isSpace: item !== null && item.flexibleSpace
    readonly property real naturalWidth: isSpace ? 0 : implicitWidth

    width: isSpace ? spaceWidth : implicitWidth
    outlet: item
    enabled: !isSpace
    onTriggered: item.tap()

    Accessible.ignored: isSpace
}
