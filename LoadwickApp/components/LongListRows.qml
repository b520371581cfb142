import QtQuick

// The rows of a LongList that exist: as many as the page has ever shown at once, or all of a short
// list, of which those below the page follow its first frame, a few in each. A row that has left the
// page is pooled and reused, at a fraction of the cost of a new one. The view keeps its size and
// position while the page scrolls, since Qt drops all pooled rows when either changes.
ListView {
    id: rows

    required property real rowHeight
    required property Flickable page
    // The list's position on the page.
    required property real pageTop
    required property int shortCount

    // Assistive technology pressed a row, or asked for its menu.
    signal openRequested(int index)
    signal menuRequested(int index)

    readonly property bool isShort: rows.count <= rows.shortCount
    // Whether all rows that a page can show are created before any is visible.
    property bool isFilled: false
    // 0 while rows have no height yet.
    readonly property int pageRows: rows.rowHeight > 0 ? Math.ceil(rows.page.height / rows.rowHeight) + 1 : 0
    readonly property int endRow: rows.rowAt(rows.page.contentY + rows.page.height + rows.rowHeight)
    readonly property int seenRows: rows.isFilled ? rows.pageRows : rows.endRow - rows.rowAt(rows.page.contentY)
    property int mostSeenRows: 0
    // Of a short list.
    property int madeRows: 0
    readonly property int shownRows: rows.isShort
        ? Math.min(rows.count, Math.max(rows.endRow, rows.madeRows))
        : Math.min(rows.count, rows.pageRows, Math.max(rows.seenRows, rows.mostSeenRows))
    readonly property int firstRow: rows.isShort ? 0 : Math.min(rows.count - rows.shownRows, rows.rowAt(rows.page.contentY))

    function rowAt(pageY) {
        return Math.max(0, Math.min(rows.count, Math.floor((pageY - rows.pageTop) / rows.rowHeight)));
    }

    function placeRows() {
        rows.contentY = rows.firstRow * rows.rowHeight;
    }

    // The row that has the focus or contains it; null for none.
    function focusedRow() {
        let item = rows.Window.activeFocusItem;
        while (item && item.parent !== rows.contentItem)
            item = item.parent;
        return item;
    }

    // A row that leaves is reused as another one.
    function takeFocusFromLeaving() {
        const row = rows.activeFocus ? rows.focusedRow() : null;
        const index = row ? Math.round(row.y / rows.rowHeight) : -1;
        if (row && (index < rows.firstRow || index >= rows.firstRow + rows.shownRows))
            rows.takeFocusBack();
    }

    function takeFocusBack() {
        if (rows.activeFocus && rows.focusedRow())
            rows.Window.activeFocusItem.focus = false;
    }

    height: rows.shownRows * rows.rowHeight
    transform: Translate { y: rows.contentY }
    interactive: false
    keyNavigationEnabled: false
    currentIndex: -1
    highlightFollowsCurrentItem: false
    cacheBuffer: 0
    reuseItems: true

    onModelChanged: rows.madeRows = 0
    onSeenRowsChanged: rows.mostSeenRows = Math.max(rows.mostSeenRows, rows.seenRows)
    onRowHeightChanged: rows.placeRows()
    onFirstRowChanged: {
        rows.takeFocusFromLeaving();
        rows.placeRows();
    }
    onShownRowsChanged: rows.takeFocusFromLeaving()
    // A view returns to its top when its model changes.
    onContentYChanged: rows.placeRows()

    FrameAnimation {
        running: rows.isShort && rows.madeRows < rows.count
        // In one step where nothing may be seen to grow.
        onTriggered: rows.madeRows += AppTheme.reduceMotion ? rows.count : 2
    }
}
