import QtQuick
import Marrowvale.Toolkit

// One of the styles of a date picker.
Item {
    required property UIDatePicker picker
    property Shades shades: Theme.shades

    // The picked day is to move.
    signal shifted(days: int, months: int)
}
