import QtQuick
import Marrowvale.Controls
import Marrowvale.Toolkit

// A table under its search field. Ctrl+F searches.
FocusScope {
    id: searched

    required property UISearchController searchController
    required property UITableView outlet
    property alias name: table.name
    property string segue
    property string emptyText
    property string nothingFoundText
    property alias delegate: table.delegate

    signal triggered

    Shortcut {
        sequences: ["Ctrl+F"]
        enabled: searched.activeFocus
        onActivated: search.begin()
    }

    SearchBar {
        id: search

        anchors.horizontalCenter: parent.horizontalCenter
        y: 8
        width: Math.min(parent.width, Theme.columnWidth + 2 * Theme.margin) - 2 * Theme.gap
        outlet: searched.searchController.searchBar
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
        outlet: searched.outlet
        emptyText: search.searching ? searched.nothingFoundText : searched.emptyText
        onTriggered: searched.triggered()
    }
}
