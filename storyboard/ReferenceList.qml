pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Controls
import Marrowvale.Editing

// One layout for the genres, the providers and the ratings.
Scene {
    id: root

    required property ReferenceListTableViewController screen

    controller: screen

    barItems: BarButton {
        id: addButton

        title: root.screen.addTitle
        image: "plus"
        segue: "AddReference"
    }

    Shortcut {
        sequences: ["Ctrl+N"]
        enabled: root.activeFocus
        onActivated: addButton.press()
    }

    Table {
        anchors.fill: parent
        focus: true
        name: root.screen.title
        outlet: root.screen.tableView
        segue: "EditReference"
        emptyText: "Nothing here yet.\nAdd the first one with +."
        delegate: ReferenceRow {
            table: root.screen.tableView
        }
    }
}
