import QtQuick
import Marrowvale.Controls
import Marrowvale.Model
import Marrowvale.Storyboard

// The window's root: its stack of layouts, in the device's style.
Rectangle {
    id: root

    required property SceneStage stage
    required property CatalogueKeeper keeper

    color: Theme.shades.window

    Binding {
        target: Theme
        property: "dark"
        value: root.stage.interfaceStyle.dark
    }

    NavigationStack {
        width: parent.width
        anchors.top: parent.top
        anchors.bottom: banner.top
        stage: root.stage
        stack: root.stage.root
    }

    Banner {
        id: banner

        width: parent.width
        anchors.bottom: parent.bottom
        text: root.keeper.notice
    }
}
