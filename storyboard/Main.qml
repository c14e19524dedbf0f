import QtQuick
import Marrowvale.Controls
import Marrowvale.Storyboard

// The window's root: its stack of layouts, in the device's style.
Rectangle {
    id: root

    required property SceneStage stage

    color: Theme.shades.window

    Binding {
        target: Theme
        property: "dark"
        value: root.stage.interfaceStyle.dark
    }

    NavigationStack {
        anchors.fill: parent
        stage: root.stage
        stack: root.stage.root
    }
}
