import QtQuick
import Marrowvale.Toolkit

// A search field with a button that clears it. Escape clears it too; `finished` says that the user is done here.
FocusScope {
    id: bar

    required property UISearchBar outlet

    readonly property bool searching: outlet.text.length > 0

    signal edited
    signal finished

    function begin() {
        input.forceActiveFocus(Qt.ShortcutFocusReason);
        input.selectAll();
    }

    function search(text: string) {
        bar.outlet.setText(text);
        bar.edited();
    }

    function cancel() {
        if (bar.searching)
            bar.search("");
        bar.finished();
    }

    implicitHeight: Theme.target

    Keys.onEscapePressed: cancel()
    Keys.onDownPressed: finished()
    Keys.onReturnPressed: finished()

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: 2
        anchors.bottomMargin: 2
        radius: 12
        color: Theme.shades.field
        border.width: input.activeFocus ? 2 : 1
        border.color: input.activeFocus ? Theme.shades.accent : Theme.shades.divider
    }

    Symbol {
        id: glass

        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        color: Theme.shades.secondary
        size: 20
    }

    Text {
        anchors.fill: input
        visible: input.length === 0
        verticalAlignment: Text.AlignVCenter
        text: bar.outlet.placeholder
        elide: Text.ElideRight
        color: Theme.shades.secondary
        font: input.font
    }

    InputLine {
        id: input

        anchors.left: glass.right
        anchors.leftMargin: 8
        anchors.right: clear.left
        height: parent.height
        label: bar.outlet.placeholder
        focus: true
        inputMethodHints: Qt.ImhNoPredictiveText

        Accessible.searchEdit: true

        onTextEdited: bar.search(text)

        Connections {
            target: bar.outlet

            function onChanged() {
                if (input.text !== bar.outlet.text)
                    input.text = bar.outlet.text;
            }
        }
    }

    BarButton {
        id: clear

        anchors.right: parent.right
        visible: input.length > 0
        activeFocusOnTab: false
        title: "Clear"
        image: "xmark.circle.fill"
        tint: Theme.shades.secondary
        onTriggered: {
            bar.search("");
            input.forceActiveFocus();
        }
    }
}
