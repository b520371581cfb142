import QtQuick
import QtQuick.Controls
import Loadwick

// A menu of plain items, on a card that floats.
Menu {
    id: menu

    padding: AppTheme.tightSpace

    background: Rectangle {
        radius: AppTheme.controlRadius
        color: AppTheme.surface
        border { width: AppTheme.hairline; color: AppTheme.separator }
    }
    contentItem: PlainMenuRows { menu: menu }
}
