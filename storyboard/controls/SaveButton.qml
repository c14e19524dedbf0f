import QtQuick

// Saves what the scene holds; Ctrl+S does too while the scene has the keyboard.
BarButton {
    id: button

    required property Scene scene

    title: "Save"
    action: "SaveButtonClicked"
    prominent: true

    Shortcut {
        sequences: ["Ctrl+S"]
        enabled: button.scene.activeFocus
        onActivated: button.press()
    }
}
