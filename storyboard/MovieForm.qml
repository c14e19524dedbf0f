pragma ComponentBehavior: Bound

import QtQuick
import Marrowvale.Controls
import Marrowvale.Editing

// The form of a movie. Its ground is the light one that screens fix, in either style.
Page {
    id: form

    required property MovieEditorViewController editor
    // What a double tap on the cover does; empty: nothing.
    property string coverAction

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
        outlet: form.editor.ContentView

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
                    outlet: form.editor.coverView
                    action: form.coverAction
                    shades: Theme.paper
                }

                Grid {
                    id: coverButtons

                    width: Math.min(parent.width - coverView.width - Theme.gap, 240)
                    columns: 2
                    spacing: 8

                    CoverButton {
                        outlet: form.editor.PasteButton
                        action: "PasteImage"
                    }

                    CoverButton {
                        outlet: form.editor.CameraButton
                        action: "OpenFrontCamera"
                    }

                    CoverButton {
                        outlet: form.editor.FolderButton
                        action: "AttachFrontImage"
                    }

                    CoverButton {
                        outlet: form.editor.RemoveButton
                        action: "RemoveFrontImage"
                    }
                }
            }

            FormField {
                width: parent.width
                label: "Movie Name"
                outlet: form.editor.MovieNameTextField
                mandatory: true
            }

            Row {
                spacing: Theme.gap

                FormField {
                    width: fields.half
                    label: "Year Released"
                    outlet: form.editor.YearReleasedTextField
                    mandatory: true
                    digits: true
                }

                FormField {
                    width: fields.half
                    label: "Run Time"
                    outlet: form.editor.RunTimeTextField
                    digits: true
                }
            }

            Row {
                spacing: Theme.gap

                FormField {
                    width: fields.half
                    label: "Genre"
                    outlet: form.editor.GenreTextField
                    mandatory: true
                }

                FormField {
                    width: fields.half
                    label: "Rating"
                    outlet: form.editor.RatingTextField
                }
            }

            Grid {
                columns: form.wide ? 2 : 1
                columnSpacing: Theme.gap
                rowSpacing: fields.spacing

                FormField {
                    width: form.wide ? fields.half : fields.width
                    label: "Date Watched"
                    outlet: form.editor.DateWatchedTextField
                    beginAction: "DateWatchedEntered"
                }

                FormField {
                    width: form.wide ? fields.half : fields.width
                    label: "Provider"
                    outlet: form.editor.providerField
                }

                FormArea {
                    label: "Actors"
                    outlet: form.editor.ActorsTextView
                }

                FormArea {
                    label: "Directors"
                    outlet: form.editor.DirectorsTextView
                }

                FormArea {
                    label: "Producers"
                    outlet: form.editor.ProducersTextView
                }

                FormArea {
                    label: "Notes"
                    outlet: form.editor.NotesTextView
                }
            }
        }
    }
}
