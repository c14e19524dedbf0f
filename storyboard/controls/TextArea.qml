import QtQuick
import Marrowvale.Toolkit

// A text of several lines under its label; it grows with the text.
Item {
    id: area

    required property string label
    required property UITextView outlet
    property int leastHeight: 72
    property Shades shades: Theme.shades

    implicitHeight: box.implicitHeight
    height: implicitHeight

    InputBox {
        id: box

        width: parent.width
        label: area.label
        outlet: area.outlet
        edited: area.outlet.editing
        shades: area.shades
        frameHeight: Math.max(area.leastHeight, input.implicitHeight)

        TextEdit {
            id: input

            width: parent.width
            height: parent.height
            padding: 10
            enabled: area.outlet.enabled
            readOnly: !area.outlet.editable
            activeFocusOnTab: true
            selectByMouse: true
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            color: area.shades.text
            selectionColor: area.shades.accent
            selectedTextColor: area.shades.accentText
            font.family: Theme.fontFamily
            font.pixelSize: Theme.body

            Accessible.role: Accessible.EditableText
            Accessible.name: area.label
            Accessible.editable: area.outlet.editable
            Accessible.multiLine: true

            Keys.priority: Keys.BeforeItem
            Keys.onTabPressed: nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

            onTextChanged: link.typed()
            onFocusChanged: link.focusMoved()

            EditingLink {
                id: link

                outlet: area.outlet
                input: input
            }
        }
    }
}
