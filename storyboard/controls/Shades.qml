import QtQuick

// The colours of one style.
QtObject {
    required property color window
    required property color surface
    required property color field
    required property color text
    required property color secondary
    required property color divider
    required property color accent
    required property color accentText
    required property color danger
}
