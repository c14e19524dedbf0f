import QtQuick
import Marrowvale.Controls
import Marrowvale.Editing

// One layout for the entry and the renaming of a genre, a provider or a rating.
Scene {
    id: root

    required property ReferenceValueViewController screen

    controller: screen

    barItems: SaveButton {
        id: saveButton

        scene: root
        action: root.screen.saveAction
    }

    Shortcut {
        sequences: ["Return", "Enter"]
        enabled: root.activeFocus && root.screen.valueField.editing
        onActivated: saveButton.press()
    }

    Page {
        anchors.fill: parent
        columnWidth: 560

        ground: TapArea {
            anchors.fill: parent
            action: root.screen.tapAction
        }

        Field {
            width: parent.width
            label: root.screen.fieldLabel
            outlet: root.screen.valueField
        }
    }
}
