import QtQuick
import Loadwick

// Any number of rows of one height inside a scrolling page. Only the rows on the page exist, except
// in a short list, which a screen reader finds whole. The delegate is `rowHeight` high, names
// itself for assistive technology, and hides itself while pooled; there Qt 6.8 takes it out of the
// accessible tree, to which it returns itself when it is reused.
FocusScope {
    id: list

    property alias model: rows.model
    property alias delegate: rows.delegate
    // Whether all rows that a page can show are created before any is visible.
    property alias isFilled: rows.isFilled
    readonly property alias count: rows.count
    required property real rowHeight
    // What scrolls the page.
    required property Flickable viewport
    // The row that the keys have reached or that was pressed, -1 before that.
    property int currentIndex: -1
    // The row highlighted from outside the list, -1 for none.
    property int markedIndex: -1
    // A list of at most this many rows exists as a whole.
    property int shortCount: 60

    signal copyRequested(int index)
    // Assistive technology pressed a row, or asked for its menu.
    signal openRequested(int index)
    signal menuRequested(int index)

    // The list's position on the page. It moves when any of its ancestors does.
    readonly property real pageTop: {
        let top = 0;
        for (let item = list as Item; item && item !== list.viewport.contentItem; item = item.parent)
            top += item.y;
        return top;
    }

    // Call it before the rows are replaced: they lose the focus.
    function begin() {
        rows.takeFocusBack();
        list.currentIndex = -1;
    }

    // The row at that height in the list, null if there is none or it is out of sight.
    function rowUnder(y) {
        return rows.itemAt(0.5 * rows.width, y);
    }

    function goTo(index) {
        list.currentIndex = Math.max(0, Math.min(rows.count - 1, index));
        list.scrollTo(list.currentIndex);
        list.focusRow();
    }

    function scrollTo(index) {
        const start = list.pageTop + index * list.rowHeight - AppTheme.smallSpace;
        const end = start + list.rowHeight + 2 * AppTheme.smallSpace;
        const highest = list.viewport.contentHeight - list.viewport.height;
        const wanted = Math.max(Math.min(list.viewport.contentY, start), end - list.viewport.height);
        list.viewport.contentY = Math.max(0, Math.min(highest, wanted));
    }

    // Screen readers read the focused item. A row that scrolls away gives the focus to the list.
    function focusRow() {
        rows.forceLayout();
        const row = rows.itemAtIndex(list.currentIndex);
        if (row)
            row.forceActiveFocus(Qt.TabFocusReason);
    }

    // The row that contains the focus, as after a press in it; -1 if the row itself has the focus.
    function pressedRow() {
        const row = rows.focusedRow();
        return row && row !== list.Window.activeFocusItem ? rows.indexAt(0, row.y) : -1;
    }

    // NaN for a key that moves nothing, as at the end of the list; the page may use it.
    function indexAfterKey(key) {
        const index = Math.max(0, Math.min(rows.count - 1, list.indexBeyond(key)));
        return index === list.currentIndex ? NaN : index;
    }

    function indexBeyond(key) {
        const page = Math.max(1, Math.floor(list.viewport.height / list.rowHeight) - 1);
        switch (key) {
        case Qt.Key_Up: return list.currentIndex - 1;
        case Qt.Key_Down: return list.currentIndex + 1;
        case Qt.Key_PageUp: return list.currentIndex - page;
        case Qt.Key_PageDown: return list.currentIndex + page;
        case Qt.Key_Home: return 0;
        case Qt.Key_End: return rows.count - 1;
        default: return NaN;
        }
    }

    implicitHeight: rows.count * list.rowHeight
    activeFocusOnTab: rows.count > 0
    Accessible.role: Accessible.List
    Accessible.focusable: list.activeFocusOnTab

    onActiveFocusChanged: if (list.activeFocus && rows.count > 0 && list.pressedRow() < 0) list.goTo(list.currentIndex)
    Window.onActiveFocusItemChanged: if (list.pressedRow() >= 0) list.currentIndex = list.pressedRow()

    Keys.onPressed: event => {
        const index = list.indexAfterKey(event.key);
        event.accepted = rows.count > 0 && (!isNaN(index) || event.matches(StandardKey.Copy));
        if (event.accepted && isNaN(index))
            list.copyRequested(list.currentIndex);
        else if (event.accepted)
            list.goTo(index);
    }
    // From a row, the previous tab stop would be its own list.
    Keys.onBacktabPressed: list.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    Rectangle {
        objectName: "mark"
        x: -AppTheme.smallSpace
        y: list.markedIndex * list.rowHeight
        width: parent.width + 2 * AppTheme.smallSpace
        height: list.rowHeight
        radius: AppTheme.controlRadius
        color: AppTheme.quietFill
        visible: list.markedIndex >= 0
    }

    LongListRows {
        id: rows

        objectName: "rows"
        width: parent.width
        rowHeight: list.rowHeight
        page: list.viewport
        pageTop: list.pageTop
        shortCount: list.shortCount
        onOpenRequested: index => list.openRequested(index)
        onMenuRequested: index => list.menuRequested(index)
        onCountChanged: if (list.currentIndex >= rows.count) list.currentIndex = rows.count - 1
    }

    Item {
        y: list.currentIndex * list.rowHeight + 4
        width: parent.width
        height: list.rowHeight - 8

        FocusRing {
            objectName: "ring"
            shown: list.activeFocus && list.currentIndex >= 0
        }
    }
}
