import QtQuick
import Marrowvale.Controls
import Marrowvale.Editing

Scene {
    id: root

    required property ReferenceListViewController screen

    component ListButton: PushButton {
        width: parent.width
    }

    controller: screen
    title: "Reference Lists"

    Page {
        anchors.fill: parent
        columnWidth: 380

        Label {
            width: parent.width
            topPadding: 12
            bottomPadding: 8
            text: "What you can pick from when you enter a movie."
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            color: Theme.shades.secondary
            lineHeight: 1.2
        }

        ListButton {
            outlet: root.screen.GenreButton
            title: "Genres"
            segue: "Genres"
        }

        ListButton {
            outlet: root.screen.RatingButton
            title: "Ratings"
            segue: "Ratings"
        }

        ListButton {
            outlet: root.screen.ProviderButton
            title: "Providers"
            segue: "Providers"
        }
    }
}
