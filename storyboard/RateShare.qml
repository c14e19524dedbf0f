pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Controls
import Marrowvale.Toolkit

Scene {
    id: root

    required property UITableViewController screen

    controller: screen

    Table {
        anchors.fill: parent
        focus: true
        name: root.screen.title
        outlet: root.screen.tableView
        delegate: MenuRow {
            table: root.screen.tableView
        }
    }
}
