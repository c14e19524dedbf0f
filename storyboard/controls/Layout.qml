import QtQuick
import Marrowvale.Toolkit

// What a navigation stack shows for a screen. Made before its screen is on the stack, which then tells the layout
// where it stands.
FocusScope {
    id: layout

    required property UIViewController controller
    property UINavigationController navigation: null
    property int navigationDepth: 1

    Binding {
        target: layout.controller
        property: "viewWidth"
        value: layout.width
        when: layout.width > 0
    }
}
