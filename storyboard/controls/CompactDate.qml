import QtQuick

// The date on a button that opens the month.
DateView {
    id: compact

    implicitHeight: calendar.visible ? calendar.y + calendar.implicitHeight : 216

    PushButton {
        id: face

        anchors.horizontalCenter: parent.horizontalCenter
        y: calendar.visible ? 8 : 84
        width: 200
        shades: compact.shades
        title: compact.picker !== null ? compact.picker.dateText : ""
        onTriggered: calendar.visible = !calendar.visible
    }

    MonthCalendar {
        id: calendar

        y: face.y + face.height
        width: parent.width
        visible: false
        picker: compact.picker
        shades: compact.shades
        onShifted: (days, months) => compact.shifted(days, months)
    }
}
