pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Controls
import Marrowvale.Summaries

// One layout for the five group summaries.
Scene {
    id: root

    required property GroupTableViewController screen

    controller: screen

    homeButton: BarButton {
        title: "Menu"
        image: "chevron.left"
        action: "UnwindSegue"
    }

    barItems: BarButton {
        outlet: root.screen.SortButton
        action: "SortButtonTapped"
    }

    SearchedTable {
        anchors.fill: parent
        focus: true
        name: root.screen.title
        searchController: root.screen.searchController
        outlet: root.screen.tableView
        segue: "Breakdown"
        emptyText: "Nothing to group yet."
        nothingFoundText: "No group matches the search."
        delegate: GroupRow {
            table: root.screen.tableView
        }
    }
}
