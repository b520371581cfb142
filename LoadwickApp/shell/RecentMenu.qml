import QtQuick
import Loadwick

// The repositories that can be chosen again. The current one is checked; one whose folder is gone
// is disabled and says so.
PlainMenu {
    id: menu

    required property RecentRepositories recent

    implicitWidth: AppTheme.scaled(320)

    Repeater {
        model: menu.recent.rows

        PlainMenuItem {
            id: row

            required property int index
            required property bool exists
            required property bool isCurrent

            enabled: row.exists
            marked: row.isCurrent
            onTriggered: (row.menu as RecentMenu).recent.choose(row.index)
        }
    }
}
