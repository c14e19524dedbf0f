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
    // Numbers and dates: Qt Quick would put them where the writing of the user's locale begins.
    readonly property bool keepsLeft: digits || outlet.inputView as UIDatePicker !== null
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

        InputLine {
            id: input

            anchors.fill: parent
            leftPadding: 10
            rightPadding: 10
            enabled: field.outlet.enabled
            label: field.label
            shades: field.shades
            horizontalAlignment: field.keepsLeft ? TextInput.AlignLeft : undefined
            inputMethodHints: field.digits ? Qt.ImhDigitsOnly : Qt.ImhNone

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
