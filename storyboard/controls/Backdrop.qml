import QtQuick

// Dims what a sheet or an alert covers.
Rectangle {
    color: "#73000000"

    Behavior on opacity {
        NumberAnimation {
            duration: Theme.slide
        }
    }
}
