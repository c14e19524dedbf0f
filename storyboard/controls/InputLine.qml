import QtQuick

// A line that is typed into, of any length.
TextInput {
    required property string label
    property Shades shades: Theme.shades

    // Qt Quick would cut a text at 32,767 characters without a word.
    maximumLength: 0x7fffffff
    verticalAlignment: TextInput.AlignVCenter
    activeFocusOnTab: true
    clip: true
    selectByMouse: true
    color: shades.text
    selectionColor: shades.accent
    selectedTextColor: shades.accentText
    font.family: Theme.fontFamily
    font.pixelSize: Theme.body

    Accessible.role: Accessible.EditableText
    Accessible.name: label
    Accessible.editable: true
}
