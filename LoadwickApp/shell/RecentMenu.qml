import QtQuick
import QtQuick.Templates
import Loadwick

// The repositories that can be chosen again, the one scanned last first. Typing narrows them down,
// whether the line for it or a row has the focus. Only the rows that show exist, unlike those of a
// menu.
Popup {
    id: menu

    required property RecentRepositories recent
    required property Item button
    readonly property real room: button.Window.height - button.mapToItem(null, 0, menu.y).y - AppTheme.smallSpace

    parent: button
    x: button.width - menu.width
    y: button.height + AppTheme.tightSpace
    implicitWidth: AppTheme.scaled(380)
    implicitHeight: contentHeight + topPadding + bottomPadding
    height: Math.min(menu.implicitHeight, menu.room)
    padding: AppTheme.tightSpace
    focus: true
    // A click on the button closes it.
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutsideParent

    onAboutToShow: (menu.contentItem as RecentChooser).begin()
    onOpened: Announcer.announce(menu.recent.matchWords)

    Connections {
        target: menu.recent
        enabled: menu.opened

        function onFilterChanged() { Announcer.announce(menu.recent.matchWords); }
    }
    background: Rectangle {
        radius: AppTheme.controlRadius
        color: AppTheme.surface
        border { width: AppTheme.hairline; color: AppTheme.separator }
    }
    contentItem: RecentChooser {
        recent: menu.recent
        onChosen: row => {
            menu.close();
            menu.recent.choose(row);
        }
    }
}
