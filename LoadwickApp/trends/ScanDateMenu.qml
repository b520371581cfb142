import QtQuick
import QtQuick.Controls
import Loadwick

// The scans that can be chosen for one side of the comparison, the newest first. Only the rows that
// show exist, unlike those of a menu.
Popup {
    id: menu

    required property ScanDateButton button

    readonly property ScanDateList list: menu.contentItem as ScanDateList

    function openAt(row) {
        menu.list.currentIndex = row;
        menu.list.positionViewAtIndex(row, ListView.Center);
        menu.open();
    }

    parent: button
    y: button.height + AppTheme.tightSpace
    width: button.width
    height: Math.min(menu.list.contentHeight + menu.topPadding + menu.bottomPadding, 7.5 * AppTheme.listRowHeight)
    margins: AppTheme.smallSpace
    padding: AppTheme.tightSpace
    focus: true
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside

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
