import QtQuick
import QtQuick.Controls
import Loadwick

// A menu of plain items, on a card that floats.
Menu {
    padding: AppTheme.tightSpace

    background: Rectangle {
        radius: AppTheme.controlRadius
        color: AppTheme.surface
        border { width: AppTheme.hairline; color: AppTheme.separator }
    }
}
