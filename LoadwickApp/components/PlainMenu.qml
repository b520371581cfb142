import QtQuick
import QtQuick.Templates
import Loadwick

// A menu of plain items on a floating card. Home, End, Page Up and Page Down go to its first and
// last item; a bare menu leaves these keys to the page behind it.
Menu {
    id: menu

    // Focuses the first or the last enabled item.
    function goToEnd(isLast) {
        const step = isLast ? -1 : 1;
        for (let index = isLast ? menu.count - 1 : 0; index >= 0 && index < menu.count; index += step)
            if (menu.itemAt(index).enabled) {
                menu.currentIndex = index;
                return;
            }
    }

    function isFirst(key) { return key === Qt.Key_Home || key === Qt.Key_PageUp; }
    function isLast(key) { return key === Qt.Key_End || key === Qt.Key_PageDown; }
    function isOwnKey(key) { return menu.isFirst(key) || menu.isLast(key); }

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    margins: 0
    padding: AppTheme.tightSpace

    background: Rectangle {
        radius: AppTheme.controlRadius
        color: AppTheme.surface
        border { width: AppTheme.hairline; color: AppTheme.separator }
    }

    contentItem: ListView {
        implicitHeight: contentHeight
        model: menu.contentModel
        currentIndex: menu.currentIndex
        interactive: Window.window !== null && contentHeight + menu.topPadding + menu.bottomPadding > Window.window.height
        clip: true
        focus: true
        ScrollBar.vertical: ThinScrollBar { }

        Keys.onShortcutOverride: event => { event.accepted = menu.isOwnKey(event.key); }
        Keys.onPressed: event => {
            event.accepted = menu.isOwnKey(event.key);
            if (event.accepted)
                menu.goToEnd(menu.isLast(event.key));
        }
    }
}
