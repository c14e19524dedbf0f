import QtQuick

// A text that assistive technology sees.
Text {
    property Shades shades: Theme.shades

    color: shades.text
    textFormat: Text.PlainText
    font.family: Theme.fontFamily
    font.pixelSize: Theme.body

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
