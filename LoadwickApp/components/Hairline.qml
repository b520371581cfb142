import QtQuick
import Loadwick

// A separator of any width.
Rectangle {
    implicitHeight: AppTheme.hairline
    implicitWidth: AppTheme.hairline
    color: AppTheme.separator
    Accessible.ignored: true
}
