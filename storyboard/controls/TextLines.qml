pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Controls
import Marrowvale.Toolkit

// A long text with its pictures: only the pieces in sight are laid out.
Rectangle {
    id: view

    required property UITextView outlet
    // Told to assistive technology.
    property string name: "File Text"
    property string emptyText
    property Shades shades: Theme.shades

    radius: outlet.layer.cornerRadius > 0 ? outlet.layer.cornerRadius : 10
    color: shades.field
    border.width: 1
    border.color: shades.divider

    ListView {
        id: list

        anchors.fill: parent
        anchors.margins: 1
        leftMargin: 10
        rightMargin: 10
        topMargin: 8
        bottomMargin: 8
        clip: true
        activeFocusOnTab: true
        model: view.outlet.pieces
        boundsBehavior: Flickable.StopAtBounds

        Keys.onDownPressed: flick(0, -600)
        Keys.onUpPressed: flick(0, 600)

        Accessible.role: Accessible.List
        Accessible.name: view.name

        ScrollBar {
            view: list
        }

        delegate: Item {
            id: line

            required property int index
            required property textPiece piece
            readonly property bool isPicture: piece.imageSize.width > 0

            width: ListView.view.width - 20
            height: isPicture ? piece.imageSize.height : edit.implicitHeight

            ImageItem {
                visible: line.isPicture
                width: line.piece.imageSize.width
                height: line.piece.imageSize.height
                image: line.piece.image // qmllint disable
                fillMode: ImageItem.Stretch
            }

            TextEdit {
                id: edit

                width: parent.width
                visible: !line.isPicture
                text: line.piece.text
                readOnly: !view.outlet.editable
                selectByMouse: !readOnly
                textFormat: TextEdit.PlainText
                wrapMode: TextEdit.Wrap
                horizontalAlignment: line.piece.centred ? TextEdit.AlignHCenter : TextEdit.AlignLeft
                color: view.shades.text
                selectionColor: view.shades.accent
                selectedTextColor: view.shades.accentText
                font.family: Theme.fontFamily
                font.pixelSize: line.piece.fontSize > 0 ? line.piece.fontSize : Theme.small

                Accessible.role: readOnly ? Accessible.StaticText : Accessible.EditableText
                Accessible.name: readOnly ? text : view.name
                Accessible.editable: !readOnly
                Accessible.multiLine: true

                onTextChanged: if (activeFocus && text !== line.piece.text)
                    view.outlet.editPiece(line.index, text)
            }
        }
    }

    Label {
        anchors.centerIn: parent
        visible: list.count === 0
        text: view.emptyText
        color: view.shades.secondary
    }
}
