pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Controls
import Marrowvale.Toolkit

// The form of a movie. Its ground is the light one that screens fix, in either style.
Page {
    id: form

    required property UITextField movieName
    required property UITextField yearReleased
    required property UITextField runTime
    required property UITextField genre
    required property UITextField rating
    required property UITextField provider
    required property UITextField dateWatched
    required property UITextView actors
    required property UITextView directors
    required property UITextView producers
    required property UITextView notes
    required property UIImageView cover
    required property UIButton pasteButton
    required property UIButton cameraButton
    required property UIButton folderButton
    required property UIButton removeButton
    required property UIView contentView

    component FormField: Field {
        shades: Theme.paper
    }

    component FormArea: TextArea {
        shades: Theme.paper
        width: form.wide ? fields.half : fields.width
    }

    component CoverButton: PushButton {
        shades: Theme.paper
        width: (coverButtons.width - coverButtons.spacing) / 2
        faceHeight: (coverView.height - coverButtons.spacing) / 2
        stacked: true
    }

    readonly property bool wide: width > 600

    ground: TapArea {
        anchors.fill: parent
        action: "dismissKeyboard"
    }

    Container {
        width: parent.width
        height: fields.height + 2 * Theme.margin
        radius: 16
        outlet: form.contentView

        Column {
            id: fields

            readonly property real half: (width - Theme.gap) / 2

            x: Theme.margin
            y: Theme.margin
            width: parent.width - 2 * Theme.margin
            spacing: 14

            Row {
                width: parent.width
                spacing: Theme.gap

                ImageView {
                    id: coverView

                    width: 136
                    height: 136
                    label: "Front Cover"
                    outlet: form.cover
                    shades: Theme.paper
                }

                Grid {
                    id: coverButtons

                    width: Math.min(parent.width - coverView.width - Theme.gap, 240)
                    columns: 2
                    spacing: 8

                    CoverButton {
                        outlet: form.pasteButton
                        action: "PasteImage"
                    }

                    CoverButton {
                        outlet: form.cameraButton
                        action: "OpenFrontCamera"
                    }

                    CoverButton {
                        outlet: form.folderButton
                        action: "AttachFrontImage"
                    }

                    CoverButton {
                        outlet: form.removeButton
                        action: "RemoveFrontImage"
                    }
                }
            }

            FormField {
                width: parent.width
                label: "Movie Name"
                outlet: form.movieName
                mandatory: true
            }

            Row {
                spacing: Theme.gap

                FormField {
                    width: fields.half
                    label: "Year Released"
                    outlet: form.yearReleased
                    mandatory: true
                    digits: true
                }

                FormField {
                    width: fields.half
                    label: "Run Time"
                    outlet: form.runTime
                    digits: true
                }
            }

            Row {
                spacing: Theme.gap

                FormField {
                    width: fields.half
                    label: "Genre"
                    outlet: form.genre
                    mandatory: true
                }

                FormField {
                    width: fields.half
                    label: "Rating"
                    outlet: form.rating
                }
            }

            Grid {
                columns: form.wide ? 2 : 1
                columnSpacing: Theme.gap
                rowSpacing: fields.spacing

                FormField {
                    width: form.wide ? fields.half : fields.width
                    label: "Date Watched"
                    outlet: form.dateWatched
                    beginAction: "DateWatchedEntered"
                }

                FormField {
                    width: form.wide ? fields.half : fields.width
                    label: "Provider"
                    outlet: form.provider
                }

                FormArea {
                    label: "Actors"
                    outlet: form.actors
                }

                FormArea {
                    label: "Directors"
                    outlet: form.directors
                }

                FormArea {
                    label: "Producers"
                    outlet: form.producers
                }

                FormArea {
                    label: "Notes"
                    outlet: form.notes
                }
            }
        }
    }
}
