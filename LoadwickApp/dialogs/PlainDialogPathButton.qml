import QtQuick
import QtQuick.Controls
import Loadwick

// A button beside the path of a dialog that Qt draws inside the window. What is around it is cut off,
// so that it shows within its own edge that it has the keyboard.
AbstractButton {
    id: control

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: AppTheme.controlHeight
    leftPadding: AppTheme.smallSpace
    rightPadding: AppTheme.smallSpace
    focusPolicy: Qt.StrongFocus

    background: Rectangle {
        radius: AppTheme.controlRadius
        color: control.down ? AppTheme.pressedFill : control.hovered ? AppTheme.hoverFill : "transparent"
        border { width: control.visualFocus ? 2 : 0; color: AppTheme.accent }
    }
}
