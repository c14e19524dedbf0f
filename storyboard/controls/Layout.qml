import QtQuick
import Marrowvale.Toolkit

// What a navigation stack shows for a screen. Made before its screen is on the stack, which then tells the layout
// where it stands.
FocusScope {
    id: layout

    required property UIViewController controller
    property UINavigationController navigation: null
    property int navigationDepth: 1
    // On top of its stack, and neither coming nor going.
    property bool settled: false

    width: parent !== null ? parent.width : 0
    height: parent !== null ? parent.height : 0
    visible: false

    Binding {
        target: layout.controller
        property: "viewWidth"
        value: layout.width
        when: layout.width > 0
    }
}
