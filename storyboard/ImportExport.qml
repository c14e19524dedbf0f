import QtQuick
import Marrowvale.Controls
import Marrowvale.Exchange

Scene {
    id: root

    required property ImportExportViewController screen

    controller: screen
    title: "Import/Export"

    Page {
        anchors.fill: parent
        columnWidth: 380

        Label {
            width: parent.width
            topPadding: 12
            bottomPadding: 8
            text: "Move your movies to another device, or keep a copy of them in a file."
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            color: Theme.shades.secondary
            lineHeight: 1.2
        }

        PushButton {
            width: parent.width
            outlet: root.screen.ExportMoviesButton
            title: "Export Movies"
            segue: "Export"
        }

        PushButton {
            width: parent.width
            outlet: root.screen.ImportMoviesButton
            title: "Import Movies"
            segue: "Import"
        }
    }
}
