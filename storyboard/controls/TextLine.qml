import QtQuick
import Marrowvale.Controls
import Marrowvale.Toolkit

// A piece of a long text: text, or a picture. Its cursor can leave it for the pieces around.
Item {
    id: line

    required property int index
    required property textPiece piece
    required property UITextView outlet
    // Told to assistive technology.
    required property string name
    property Shades shades: Theme.shades
    readonly property bool isPicture: piece.imageSize.width > 0
    readonly property rect cursor: edit.cursorRectangle

    // Which way the cursor goes: -1 or 1 for the pieces next to this one, -2 or 2 for the ends of the text.
    signal cursorLeft(way: int)
    signal cursorMoved

    function beginEditing(atEnd: bool) {
        edit.forceActiveFocus();
        edit.cursorPosition = atEnd ? edit.length : 0;
        line.cursorMoved();
    }

    function wayOut(event): int {
        const wide = event.modifiers & Qt.ControlModifier;
        if (event.modifiers & Qt.ShiftModifier)
            return 0;
        if (event.key === Qt.Key_Up && line.cursor.y < line.cursor.height / 2)
            return -1;
        if (event.key === Qt.Key_Down && line.cursor.y + 1.5 * line.cursor.height > edit.contentHeight)
            return 1;
        if (event.key === Qt.Key_Home && wide)
            return -2;
        return event.key === Qt.Key_End && wide ? 2 : 0;
    }

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
        readOnly: !line.outlet.editable
        selectByMouse: !readOnly
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap
        horizontalAlignment: line.piece.centred ? TextEdit.AlignHCenter : TextEdit.AlignLeft
        color: line.shades.text
        selectionColor: line.shades.accent
        selectedTextColor: line.shades.accentText
        font.family: Theme.fontFamily
        font.pixelSize: line.piece.fontSize > 0 ? line.piece.fontSize : Theme.small

        Accessible.role: readOnly ? Accessible.StaticText : Accessible.EditableText
        Accessible.name: readOnly ? text : line.name
        Accessible.editable: !readOnly
        Accessible.multiLine: true

        Keys.priority: Keys.BeforeItem
        Keys.onTabPressed: nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)
        Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        Keys.onEscapePressed: event => {
            event.accepted = !edit.readOnly;
            edit.focus = edit.readOnly;
        }
        Keys.onPressed: event => {
            const way = line.wayOut(event);
            event.accepted = way !== 0;
            if (event.accepted)
                line.cursorLeft(way);
        }

        onCursorRectangleChanged: if (activeFocus)
            line.cursorMoved()
        onTextChanged: if (activeFocus && text !== line.piece.text)
            line.outlet.editPiece(line.index, text)
    }
}
