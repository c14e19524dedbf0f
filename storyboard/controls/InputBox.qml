import QtQuick
import Marrowvale.Toolkit

// The frame of a text input, as its outlet says, under a label.
Item {
    id: box

    required property string label
    required property UIView outlet
    // A label in red: the field can't be left empty.
    property bool mandatory: false
    property bool edited: false
    property Shades shades: Theme.shades
    // The label is told to assistive technology alone: another one stands beside the box.
    property bool captionHidden: false
    property alias frameHeight: frame.height
    default property alias content: frame.data

    implicitHeight: frame.y + frame.height
    height: implicitHeight

    Label {
        id: caption

        visible: !box.captionHidden
        text: box.label
        color: box.mandatory ? box.shades.danger : box.shades.secondary
        font.pixelSize: Theme.small
        font.bold: true
    }

    Rectangle {
        id: frame

        y: box.captionHidden ? 0 : caption.height + 4
        width: parent.width
        height: Theme.target
        radius: box.outlet.layer.cornerRadius
        color: box.shades.field
        border.width: box.edited ? 2 : box.outlet.layer.borderWidth
        border.color: {
            if (box.edited)
                return box.shades.accent;
            return box.outlet.layer.borderColor.valid ? box.outlet.layer.borderColor : box.shades.divider;
        }
    }
}
