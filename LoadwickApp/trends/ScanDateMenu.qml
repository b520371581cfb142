import QtQuick
import QtQuick.Templates
import Loadwick

// The scans that can be chosen for one side of the comparison, the newest first. Only the rows that
// show exist, unlike those of a menu.
Popup {
    id: menu

    required property ScanDateButton button

    readonly property ScanDateList list: menu.contentItem as ScanDateList

    // Below the button, or above it where only there is room: the button stays in sight.
    function place() {
        const above = menu.button.mapToItem(null, 0, 0).y - AppTheme.tightSpace;
        const below = menu.button.Window.height - above - menu.button.height - 2 * AppTheme.tightSpace;
        const isBelow = menu.height <= below - AppTheme.smallSpace || below >= above;
        menu.y = isBelow ? menu.button.height + AppTheme.tightSpace : -menu.height - AppTheme.tightSpace;
    }

    function openAt(row) {
        menu.place();
        menu.list.currentIndex = row;
        menu.list.positionViewAtIndex(row, ListView.Center);
        menu.open();
    }

    parent: button
    width: button.width
    height: Math.min(menu.list.count * AppTheme.listRowHeight + menu.topPadding + menu.bottomPadding, 7.5 * AppTheme.listRowHeight)
    margins: AppTheme.smallSpace
    padding: AppTheme.tightSpace
    focus: true
    // A click on the button closes it.
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutsideParent

    // A scan that ends has replaced the rows.
    Connections {
        target: menu.button.scans

        function onModelReset() { menu.close(); }
    }

    background: Rectangle {
        radius: AppTheme.controlRadius
        color: AppTheme.surface
        border { width: AppTheme.hairline; color: AppTheme.separator }
    }
    contentItem: ScanDateList {
        model: menu.button.scans
        chosenRow: menu.button.row
        Accessible.name: menu.button.caption
        onChosen: row => {
            menu.close();
            menu.button.chosen(row);
        }
    }
}
