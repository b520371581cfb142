import QtQuick
import QtQuick.Templates
import Loadwick

// Scans by date. The current row has the focus, so that a screen reader reads it.
ListView {
    id: list

    required property int chosenRow
    readonly property int pageRows: Math.max(1, Math.floor(list.height / AppTheme.listRowHeight) - 1)

    signal chosen(int row)

    // NaN for a key that moves nothing.
    function rowAfter(key) {
        switch (key) {
        case Qt.Key_Up: return list.currentIndex - 1;
        case Qt.Key_Down: return list.currentIndex + 1;
        case Qt.Key_PageUp: return list.currentIndex - list.pageRows;
        case Qt.Key_PageDown: return list.currentIndex + list.pageRows;
        case Qt.Key_Home: return 0;
        case Qt.Key_End: return list.count - 1;
        default: return NaN;
        }
    }

    function choosesCurrent(event) {
        return !event.isAutoRepeat && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter);
    }

    clip: true
    focus: true
    keyNavigationEnabled: false
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    Accessible.role: Accessible.List
    ScrollBar.vertical: ThinScrollBar {}

    delegate: PlainMenuItem {
        id: row

        required property int index

        width: row.ListView.view ? row.ListView.view.width : 0
        implicitHeight: AppTheme.listRowHeight
        rightPadding: AppTheme.pageMargin
        highlighted: row.ListView.isCurrentItem || row.hovered
        marked: row.ListView.view ? (row.ListView.view as ScanDateList).chosenRow === row.index : false
        hoverEnabled: true
        onTriggered: (row.ListView.view as ScanDateList).chosen(row.index)
    }

    // The page has shortcuts for these keys.
    Keys.onShortcutOverride: event => { event.accepted = !isNaN(list.rowAfter(event.key)); }
    Keys.onPressed: event => {
        const row = list.rowAfter(event.key);
        const chooses = list.choosesCurrent(event);
        event.accepted = chooses || !isNaN(row);
        if (chooses)
            list.chosen(list.currentIndex);
        else if (event.accepted)
            list.currentIndex = Math.max(0, Math.min(list.count - 1, row));
    }
}
