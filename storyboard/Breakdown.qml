pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Controls
import Marrowvale.Summaries

// One layout for the five lists of a group.
Scene {
    id: root

    required property BreakdownTableViewController screen

    controller: screen
    title: "Movies"

    barItems: [
        BarButton {
            outlet: root.screen.PrintButton
            segue: "Print"
        },
        BarButton {
            outlet: root.screen.SortButton
            action: "SortButtonTapped"
        },
        BarButton {
            title: "Share"
            image: "square.and.arrow.up"
            outlet: root.screen.shareOutlet
            enabled: available && root.screen.tableView.count > 0
            action: "shareButtonClicked"
        }
    ]

    SearchedTable {
        anchors.fill: parent
        focus: true
        name: root.screen.title.length > 0 ? root.screen.title : root.title
        searchController: root.screen.searchController
        outlet: root.screen.tableView
        segue: "EditMovie"
        emptyText: "No movies in this group."
        nothingFoundText: "No movie matches the search."
        delegate: MovieRow {
            table: root.screen.tableView
        }
    }

    ActivityIndicator {
        anchors.fill: parent
        outlet: root.screen.activityIndicator
        name: "Making the report"
    }
}
