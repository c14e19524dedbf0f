import QtQuick
import Marrowvale.Controls
import Marrowvale.Editing

Scene {
    id: root

    required property AddMovieViewController screen

    controller: screen
    title: "Add Movie"

    barItems: BarButton {
        id: saveButton

        title: "Save"
        action: "SaveButtonClicked"
        prominent: true
    }

    Shortcut {
        sequences: ["Ctrl+S"]
        enabled: root.activeFocus
        onActivated: saveButton.press()
    }

    MovieForm {
        anchors.fill: parent
        movieName: root.screen.MovieNameTextField
        yearReleased: root.screen.YearReleasedTextField
        runTime: root.screen.RunTimeTextField
        genre: root.screen.GenreTextField
        rating: root.screen.RatingTextField
        provider: root.screen.WatchedOnTextField
        dateWatched: root.screen.DateWatchedTextField
        actors: root.screen.ActorsTextView
        directors: root.screen.DirectorsTextView
        producers: root.screen.ProducersTextView
        notes: root.screen.NotesTextView
        cover: root.screen.FrontImageView
        pasteButton: root.screen.PasteButton
        cameraButton: root.screen.CameraButton
        folderButton: root.screen.FolderButton
        removeButton: root.screen.RemoveButton
        contentView: root.screen.ContentView
    }
}
