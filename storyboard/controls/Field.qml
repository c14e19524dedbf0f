import QtQuick
import Marrowvale.Toolkit

// A line of text under its label.
Item {
    id: field

    required property string label
    required property UITextField outlet
    property string beginAction
    property bool mandatory: false
    property bool digits: false
    property bool captionHidden: false
    property Shades shades: Theme.shades

    implicitHeight: box.implicitHeight
    height: implicitHeight

    InputBox {
        id: box

        width: parent.width
        label: field.label
        outlet: field.outlet
        mandatory: field.mandatory
        captionHidden: field.captionHidden
        edited: field.outlet.editing
        shades: field.shades

        TextInput {
            id: input

            anchors.fill: parent
            leftPadding: 10
            rightPadding: 10
            verticalAlignment: TextInput.AlignVCenter
            enabled: field.outlet.enabled
            activeFocusOnTab: true
            clip: true
            selectByMouse: true
            color: field.shades.text
            selectionColor: field.shades.accent
            selectedTextColor: field.shades.accentText
            font.family: Theme.fontFamily
            font.pixelSize: Theme.body
            inputMethodHints: field.digits ? Qt.ImhDigitsOnly : Qt.ImhNone

            Accessible.role: Accessible.EditableText
            Accessible.name: field.label
            Accessible.editable: true

            onTextEdited: link.typed()
            onFocusChanged: link.focusMoved()
            onAccepted: nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)

            EditingLink {
                id: link

                outlet: field.outlet
                input: input
            }
        }
    }
}
