import QtQuick
import Marrowvale.Toolkit

// A label with its outlet's text.
Label {
    required property UILabel outlet

    text: outlet.text
    color: outlet.textColor.valid ? outlet.textColor : shades.text
}
