import QtQuick
import QtQuick.Window

// A scrolling column of readable width. What gets the keyboard is scrolled into sight.
Flickable {
    id: page

    property int columnWidth: Theme.columnWidth
    property int spacing: Theme.gap
    default property alias content: column.data
    // Behind the column, as large as the page.
    property alias ground: ground.data
    readonly property Item focusItem: Window.activeFocusItem

    function reveal() {
        const item = page.focusItem;
        if (item === null || !page.holds(item))
            return;
        const top = item.mapToItem(page.contentItem, 0, 0).y - 40;
        const bottom = top + Math.min(item.height + 56, page.height);
        if (top < page.contentY)
            page.contentY = Math.max(0, top);
        else if (bottom > page.contentY + page.height)
            page.contentY = Math.max(0, bottom - page.height);
    }

    function holds(item: Item): bool {
        let above = item.parent;
        while (above !== null && above !== page.contentItem)
            above = above.parent;
        return above !== null;
    }

    contentWidth: width
    contentHeight: column.implicitHeight + 2 * Theme.margin
    boundsBehavior: Flickable.DragAndOvershootBounds
    flickableDirection: Flickable.VerticalFlick
    pixelAligned: true
    onFocusItemChanged: reveal()
    onHeightChanged: reveal()

    ScrollBar {
        view: page
    }

    Item {
        id: ground

        width: page.width
        height: Math.max(page.height, page.contentHeight)
    }

    Column {
        id: column

        width: Math.min(page.width - 2 * Theme.margin, page.columnWidth)
        x: (page.width - width) / 2
        y: Theme.margin
        spacing: page.spacing
    }
}
