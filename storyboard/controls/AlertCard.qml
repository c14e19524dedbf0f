import QtQuick

// What an alert says, and its buttons.
FocusScope {
    id: card

    property string heading
    property string message
    property var actionTitles: []

    signal chosen(index: int)

    implicitHeight: column.implicitHeight

    Accessible.role: Accessible.AlertMessage
    Accessible.name: heading
    Accessible.description: message

    Column {
        id: column

        width: parent.width
        topPadding: 20
        spacing: 6

        Label {
            width: parent.width
            leftPadding: 20
            rightPadding: 20
            text: card.heading
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Theme.headline
            font.bold: true
        }

        Label {
            width: parent.width
            leftPadding: 20
            rightPadding: 20
            bottomPadding: 14
            visible: text.length > 0
            text: card.message
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: 14
        }

        AlertButtons {
            width: parent.width
            titles: card.actionTitles
            onChosen: index => card.chosen(index)
        }
    }
}
