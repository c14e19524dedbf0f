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
        sequences: ["Ctrl+F"]
        enabled: root.activeFocus
        onActivated: search.begin()
    }

    Shortcut {
        sequences: ["Ctrl+N"]
        enabled: root.activeFocus
        onActivated: addButton.press()
    }

    SearchBar {
        id: search

        anchors.horizontalCenter: parent.horizontalCenter
        y: 8
        width: Math.min(parent.width, Theme.columnWidth + 2 * Theme.margin) - 2 * Theme.gap
        outlet: root.screen.searchController.searchBar
        onEdited: table.showTop()
        onFinished: table.forceActiveFocus()
    }

    Table {
        id: table

        anchors.top: search.bottom
        anchors.topMargin: 8
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        name: "Movies"
        outlet: root.screen.tableView
        segue: "EditMovie"
        emptyText: search.searching ? "No movie matches the search." : "No movies yet.\nAdd the first one you have watched with +."
        delegate: MovieRow {
            table: root.screen.tableView
        }
    }
}
