import QtQuick
import Marrowvale.Controls
import Marrowvale.Editing

Scene {
    id: root

    required property AddMovieViewController screen

    controller: screen
    title: "Add Movie"

    barItems: SaveButton {
        scene: root
    }

    MovieForm {
        anchors.fill: parent
        editor: root.screen
    }
}
