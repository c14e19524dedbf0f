import QtQuick
import Marrowvale.Toolkit

// Day, month and year, a wheel each, in the order of the user's locale.
DateView {
    id: wheels

    readonly property var order: picker !== null ? picker.componentOrder : []
    readonly property var shares: ({
            [UIDatePicker.Year]: 0.3,
            [UIDatePicker.Month]: 0.46,
            [UIDatePicker.Day]: 0.24
        })

    // The left edge of a component's wheel: those before it in the order stand to its left.
    function leftEdge(component: int): real {
        const before = wheels.order.slice(0, Math.max(0, wheels.order.indexOf(component)));
        return wheels.width * before.reduce((sum, other) => sum + wheels.shares[other], 0);
    }

    implicitHeight: 216

    Wheel {
        x: wheels.leftEdge(UIDatePicker.Month)
        width: wheels.shares[UIDatePicker.Month] * parent.width
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
        x: wheels.leftEdge(UIDatePicker.Day)
        width: wheels.shares[UIDatePicker.Day] * parent.width
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
        x: wheels.leftEdge(UIDatePicker.Year)
        width: wheels.shares[UIDatePicker.Year] * parent.width
        name: "Year"
        count: 9999
        row: wheels.picker !== null ? wheels.picker.year - 1 : -1
        textColor: wheels.shades.text
        markColor: wheels.shades.accent
        onTurned: row => wheels.picker.pick(row + 1, wheels.picker.month, wheels.picker.day)
    }
}
