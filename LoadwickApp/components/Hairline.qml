import QtQuick
import Loadwick

// Parts two things by one line, across the width it is given.
Rectangle {
    implicitHeight: AppTheme.hairline
    implicitWidth: AppTheme.hairline
    color: AppTheme.separator
    Accessible.ignored: true
}
