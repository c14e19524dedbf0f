pragma ComponentBehavior: Bound

import QtQuick

// A month of days, with ways to the months around it. The arrow keys move the picked day.
DateView {
    id: calendar

    property int shownYear
    property int shownMonth
    readonly property int cellSize: Math.floor(Math.min(width - 16, 7 * 48) / 7)
    readonly property int leadingBlanks: {
        const first = new Date(2000, 0, 1);
        first.setFullYear(shownYear, shownMonth - 1, 1);
        return (first.getDay() - Qt.locale().firstDayOfWeek % 7 + 7) % 7;
    }
    readonly property int days: {
        const last = new Date(2000, 0, 1);
        last.setFullYear(shownYear, shownMonth, 0);
        return last.getDate();
    }

    function showPicked() {
        if (calendar.picker === null)
            return;
        calendar.shownYear = calendar.picker.year;
        calendar.shownMonth = calendar.picker.month;
    }

    function leaf(months: int) {
        const index = Math.max(12, Math.min(12 * calendar.shownYear + calendar.shownMonth - 1 + months, 9999 * 12 + 11));
        calendar.shownYear = Math.floor(index / 12);
        calendar.shownMonth = index % 12 + 1;
    }

    implicitHeight: head.height + grid.height + 12
    activeFocusOnTab: true
    onPickerChanged: showPicked()
    Component.onCompleted: showPicked()

    Accessible.role: Accessible.Grouping
    Accessible.name: heading.text

    Keys.onLeftPressed: shifted(-1, 0)
    Keys.onRightPressed: shifted(1, 0)
    Keys.onUpPressed: shifted(-7, 0)
    Keys.onDownPressed: shifted(7, 0)

    Connections {
        target: calendar.picker

        function onChanged() {
            calendar.showPicked();
        }
    }

    FocusRing {
        anchors.margins: 2
        tint: calendar.shades.accent
    }

    Item {
        id: head

        anchors.horizontalCenter: parent.horizontalCenter
        width: grid.width
        height: Theme.target

        Label {
            id: heading

            anchors.centerIn: parent
            text: Qt.locale().standaloneMonthName(Math.max(0, calendar.shownMonth - 1)) + " " + calendar.shownYear
            color: calendar.shades.text
            font.pixelSize: Theme.headline
            font.bold: true
        }

        BarButton {
            title: "Previous Month"
            image: "chevron.left"
            tint: calendar.shades.accent
            onTriggered: calendar.leaf(-1)
        }

        BarButton {
            anchors.right: parent.right
            title: "Next Month"
            image: "chevron.right"
            tint: calendar.shades.accent
            onTriggered: calendar.leaf(1)
        }
    }

    Grid {
        id: grid

        anchors.top: head.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        columns: 7

        Repeater {
            model: 7

            Label {
                required property int index

                width: calendar.cellSize
                height: 24
                text: Qt.locale().standaloneDayName((index + Qt.locale().firstDayOfWeek) % 7, Locale.ShortFormat)
                horizontalAlignment: Text.AlignHCenter
                color: calendar.shades.secondary
                font.pixelSize: Theme.caption
            }
        }

        Repeater {
            model: calendar.leadingBlanks

            Item {
                width: calendar.cellSize
                height: 1
            }
        }

        Repeater {
            model: calendar.days

            DayCell {
                required property int index

                width: calendar.cellSize
                title: index + 1
                shades: calendar.shades
                picked: calendar.picker !== null && calendar.picker.day === index + 1 && calendar.picker.month === calendar.shownMonth && calendar.picker.year === calendar.shownYear
                onTriggered: calendar.picker.pick(calendar.shownYear, calendar.shownMonth, index + 1)
            }
        }
    }
}
