pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Browse
import Marrowvale.Controls

Scene {
    id: root

    required property MainListTableViewController screen

    controller: screen
    title: "Movie List"

    barItems: [
        BarButton {
            id: addButton

            title: "Add Movie"
            image: "plus"
            segue: "AddMovie"
        },
        BarButton {
            outlet: root.screen.SortButton
            action: "SortMoviesTapped"
        },
        BarButton {
            outlet: root.screen.ShareButton
            action: "shareButtonClicked"
        }
    ]

    Shortcut {
        sequences: ["Ctrl+N"]
        enabled: root.activeFocus
        onActivated: addButton.press()
    }

    SearchedTable {
        anchors.fill: parent
        focus: true
        name: "Movies"
        searchController: root.screen.searchController
        outlet: root.screen.tableView
        segue: "EditMovie"
        emptyText: "No movies yet.\nAdd the first one you have watched with +."
        nothingFoundText: "No movie matches the search."
        delegate: MovieRow {
            table: root.screen.tableView
        }
    }
}
