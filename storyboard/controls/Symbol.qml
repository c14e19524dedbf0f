import QtQuick
import QtQuick.Window

// A symbol in one colour.
Image {
    property string name
    property color color: Theme.shades.text
    property int size: 24
    // As one number: a colour that becomes a text in compiled code may meet the garbage collector on the way, which
    // ended the program (Qt 6.4).
    readonly property real argb: ((Math.round(255 * color.a) * 256 + Math.round(255 * color.r)) * 256 + Math.round(255 * color.g)) * 256 + Math.round(255 * color.b)

    width: size
    height: size
    sourceSize.width: Math.round(size * Screen.devicePixelRatio)
    sourceSize.height: Math.round(size * Screen.devicePixelRatio)
    source: name.length > 0 ? "image://symbol/" + name + "?" + argb : ""
}
