import QtQuick
import Marrowvale.Controls
import Marrowvale.Toolkit

// A picture with its border; a symbol stands in for none.
Rectangle {
    id: view

    required property UIImageView outlet
    required property string label
    property Shades shades: Theme.shades
    // What a double tap does; empty: nothing.
    property string action

    signal triggered

    radius: outlet.layer.cornerRadius
    color: shades.field
    border.width: outlet.layer.borderWidth
    border.color: outlet.layer.borderColor.valid ? outlet.layer.borderColor : shades.divider

    Accessible.role: Accessible.Graphic
    Accessible.name: label

    Symbol {
        anchors.centerIn: parent
        name: "photo.tv"
        color: view.shades.divider
        size: 56
    }

    ImageItem {
        id: picture

        anchors.fill: parent
        anchors.margins: view.border.width
        image: view.outlet.image // qmllint disable
        radius: Math.max(0, view.radius - view.border.width)
        fillMode: view.outlet.contentMode === UIImageView.ScaleToFill ? ImageItem.Stretch : ImageItem.Fit
    }

    TapHandler {
        property bool isMeant: false

        onPressedChanged: if (pressed)
            isMeant = Modality.lets(view)
        onDoubleTapped: if (isMeant)
            view.triggered()
    }
}
