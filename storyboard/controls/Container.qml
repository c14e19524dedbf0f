import QtQuick
import Marrowvale.Toolkit

// A view that holds others, on its outlet's background.
Rectangle {
    required property UIView outlet

    color: outlet.backgroundColor.valid ? outlet.backgroundColor : "transparent"
    radius: outlet.layer.cornerRadius
    border.width: outlet.layer.borderWidth
    border.color: outlet.layer.borderColor
}
