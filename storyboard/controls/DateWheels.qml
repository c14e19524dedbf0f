import QtQuick

// Day, month and year, a wheel each, in the order of the user's locale.
DateView {
    id: wheels

    readonly property bool monthFirst: Qt.locale().dateFormat(Locale.ShortFormat).startsWith("M")

    implicitHeight: 216

    Wheel {
        id: month

        x: wheels.monthFirst ? 0 : day.width
        width: 0.46 * parent.width
        name: "Month"
        texts: Array.from({
            length: 12
        }, (unused, month) => Qt.locale().standaloneMonthName(month))
        row: wheels.picker !== null ? wheels.picker.month - 1 : -1
        textColor: wheels.shades.text
        markColor: wheels.shades.accent
        onTurned: row => wheels.picker.pick(wheels.picker.year, row + 1, wheels.picker.day)
    }

    Wheel {
        id: day

        x: wheels.monthFirst ? month.width : 0
        width: 0.24 * parent.width
        name: "Day"
        count: 31
        row: wheels.picker !== null ? wheels.picker.day - 1 : -1
        textColor: wheels.shades.text
        markColor: wheels.shades.accent
        onTurned: turnedRow => {
            wheels.picker.pick(wheels.picker.year, wheels.picker.month, turnedRow + 1);
            // A day that the month lacks: back to the one picked instead.
            follow();
        }
    }

    Wheel {
        anchors.right: parent.right
        width: 0.3 * parent.width
        name: "Year"
        count: 9999
        row: wheels.picker !== null ? wheels.picker.year - 1 : -1
        textColor: wheels.shades.text
        markColor: wheels.shades.accent
        onTurned: row => wheels.picker.pick(row + 1, wheels.picker.month, wheels.picker.day)
    }
}
