import QtQuick
import Marrowvale.Controls
import Marrowvale.Editing

Scene {
    id: root

    required property EditMovieViewController screen

    controller: screen

    barItems: [
        BarButton {
            outlet: root.screen.ZoomButton
            segue: "Zoom"
        },
        BarButton {
            outlet: root.screen.ShareButton
            action: "shareButtonClicked"
        },
        SaveButton {
            scene: root
        }
    ]

    MovieForm {
        anchors.fill: parent
        editor: root.screen
        coverAction: "TapFrontImage"
    }
}
