import QtQuick
import Loadwick

// A line between two things, as wide as it is made.
Rectangle {
    implicitHeight: AppTheme.hairline
    implicitWidth: AppTheme.hairline
    color: AppTheme.separator
    Accessible.ignored: true
}
