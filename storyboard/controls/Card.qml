import QtQuick

// Lines that belong together, on a ground of their own.
Rectangle {
    id: card

    default property alias lines: column.data

    implicitHeight: column.height
    height: implicitHeight
    radius: 14
    color: Theme.shades.surface

    Column {
        id: column

        width: parent.width
    }
}
