import QtQuick
import QtQuick.Controls
import Loadwick

// The items of a menu, one below the other. Home, End, Page Up and Page Down go to its ends, which a
// menu by itself leaves to the page behind it.
ListView {
    id: rows

    required property Menu menu
    readonly property real room: rows.Window.window ? rows.Window.window.height : Infinity

    // An item that can be chosen has the keyboard, the first or the last.
    function goToEnd(isLast) {
        const step = isLast ? -1 : 1;
        for (let index = isLast ? rows.count - 1 : 0; index >= 0 && index < rows.count; index += step)
            if (rows.menu.itemAt(index).enabled) {
                rows.menu.currentIndex = index;
                return;
            }
    }

    function isFirst(key) { return key === Qt.Key_Home || key === Qt.Key_PageUp; }
    function isLast(key) { return key === Qt.Key_End || key === Qt.Key_PageDown; }
    function isOwnKey(key) { return rows.isFirst(key) || rows.isLast(key); }

    implicitHeight: contentHeight
    model: rows.menu.contentModel
    currentIndex: rows.menu.currentIndex
    interactive: rows.contentHeight + rows.menu.topPadding + rows.menu.bottomPadding > rows.room
    clip: true
    focus: true
    ScrollIndicator.vertical: ScrollIndicator {}

    Keys.onShortcutOverride: event => { event.accepted = rows.isOwnKey(event.key); }
    Keys.onPressed: event => {
        event.accepted = rows.isOwnKey(event.key);
        if (event.accepted)
            rows.goToEnd(rows.isLast(event.key));
    }
}
