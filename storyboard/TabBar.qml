pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Controls
import Marrowvale.Storyboard
import Marrowvale.Toolkit

// Screens side by side, each with its stack, over the bar that chooses among them. The keyboard's way from tab to
// tab is Ctrl+Tab, or Ctrl and the tab's number.
Layout {
    id: root

    required property SceneStage stage
    required property UITabBarController screen

    function turn(step: int) {
        root.screen.selectedIndex = (root.screen.selectedIndex + step + root.screen.tabCount) % root.screen.tabCount;
    }

    controller: screen

    // The tabs lie beside the stack whose scene would go back.
    Keys.onEscapePressed: (stacks.itemAt(root.screen.selectedIndex) as NavigationStack).goBack()

    Shortcut {
        sequences: ["Ctrl+Tab", "Ctrl+PgDown"]
        enabled: root.activeFocus
        onActivated: root.turn(1)
    }

    Shortcut {
        sequences: ["Ctrl+Shift+Tab", "Ctrl+PgUp"]
        enabled: root.activeFocus
        onActivated: root.turn(-1)
    }

    Repeater {
        id: stacks

        model: root.screen.tabCount

        NavigationStack {
            required property int index

            anchors.fill: parent
            anchors.bottomMargin: bar.height
            stage: root.stage
            stack: root.stage.stageOf(root.screen.stack(index))
            visible: root.screen.selectedIndex === index
            focus: visible
        }
    }

    Rectangle {
        id: bar

        anchors.bottom: parent.bottom
        width: parent.width
        height: 57
        color: Theme.shades.surface

        Accessible.role: Accessible.PageTabList
        Accessible.name: "Groups"

        Rectangle {
            width: parent.width
            height: 1
            color: Theme.shades.divider
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 1

            Repeater {
                model: root.screen.tabCount

                TabButton {
                    required property int index

                    width: Math.min(root.width, Theme.columnWidth) / root.screen.tabCount
                    item: root.screen.item(index)
                    selected: root.screen.selectedIndex === index
                    onChosen: root.screen.selectedIndex = index
                }
            }
        }
    }
}
