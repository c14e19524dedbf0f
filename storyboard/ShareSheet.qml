pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Marrowvale.Controls
import Marrowvale.Services

// A sheet from below: what is shared, and what the device can do with it. Closing it chooses nothing.
Sheet {
    id: sheet

    required property UIActivityViewController activities
    property string preview
    property var titles: []
    property var symbols: []

    function choose(index: int) {
        if (sheet.activities !== null)
            sheet.activities.choose(index);
    }

    height: implicitContentHeight
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    Component.onCompleted: {
        preview = activities.preview;
        titles = activities.activityTitles;
        symbols = activities.activitySymbols;
        open();
    }
    onAboutToHide: if (sheet.activities !== null)
        sheet.activities.cancel()

    contentItem: SharePanel {
        focus: true
        preview: sheet.preview
        titles: sheet.titles
        symbols: sheet.symbols
        onChosen: index => sheet.choose(index)
        onCancelled: sheet.close()
    }
}
