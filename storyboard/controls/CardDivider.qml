import QtQuick

// Between two lines of a card.
Rectangle {
    x: Theme.margin
    width: parent.width - Theme.margin
    height: 1
    color: Theme.shades.divider
}
