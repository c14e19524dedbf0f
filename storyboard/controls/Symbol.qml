import QtQuick
import QtQuick.Window

// A symbol in one colour.
Image {
    property string name
    property color color: Theme.shades.text
    property int size: 24

    width: size
    height: size
    sourceSize.width: Math.round(size * Screen.devicePixelRatio)
    sourceSize.height: Math.round(size * Screen.devicePixelRatio)
    source: name.length > 0 ? "image://symbol/" + name + "?" + color : ""
}
