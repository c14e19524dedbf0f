import QtQuick
import QtQuick.Window
import Marrowvale.Browse
import Marrowvale.Controls

Scene {
    id: root

    required property ViewController screen

    component Entry: PushButton {
        width: parent.width
        spacing: 8
        faceHeight: 46
    }

    function moveFocus(forward: bool) {
        (Window.activeFocusItem ?? root).nextItemInFocusChain(forward).forceActiveFocus(Qt.TabFocusReason);
    }

    controller: screen
    title: "Marrowvale"

    Keys.onDownPressed: moveFocus(true)
    Keys.onUpPressed: moveFocus(false)

    Page {
        anchors.fill: parent
        columnWidth: 380
        spacing: 0

        Item {
            width: 1
            height: Math.max(8, root.height * 0.03)
        }

        Image {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 92
            height: 92
            sourceSize.width: 224
            sourceSize.height: 224
            source: "image://symbol/marrowvale"

            Accessible.ignored: true
        }

        Label {
            width: parent.width
            topPadding: 10
            text: "Marrowvale"
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Theme.display
            font.bold: true
            font.letterSpacing: -0.5
        }

        Label {
            width: parent.width
            topPadding: 2
            bottomPadding: 20
            text: "Every movie you have watched"
            horizontalAlignment: Text.AlignHCenter
            color: Theme.shades.secondary
        }

        Entry {
            outlet: root.screen.ControlButton
            title: "Menu"
            action: "HandleSelection"
        }

        Container {
            width: parent.width
            height: entries.height
            outlet: root.screen.ContentView

            Column {
                id: entries

                width: parent.width

                Entry {
                    outlet: root.screen.MovieListButton
                    title: "Movie List"
                    segue: "MovieList"
                }

                Entry {
                    outlet: root.screen.AddMovieButton
                    title: "Add Movie"
                    segue: "AddMovie"
                }

                Entry {
                    outlet: root.screen.GroupbyButton
                    title: "Group By"
                    segue: "TabBarController"
                }

                Entry {
                    outlet: root.screen.DefaultsButton
                    title: "Settings"
                    segue: "Settings"
                }

                Entry {
                    outlet: root.screen.PrintButton
                    title: "Print"
                    segue: "Print"
                }

                Entry {
                    outlet: root.screen.ReferenceListButton
                    title: "Reference Lists"
                    segue: "ReferenceLists"
                }

                Entry {
                    outlet: root.screen.ImportExportButton
                    title: "Import/Export"
                    segue: "ImportExport"
                }

                Entry {
                    outlet: root.screen.RateShareButton
                    title: "Rate/Share"
                    segue: "RateShare"
                }
            }
        }
    }
}
