import QtQuick
import Loadwick

// The repositories that can be chosen again; one whose folder is gone stands there disabled.
PlainMenu {
    id: menu

    required property RecentRepositories recent

    implicitWidth: 320

    Repeater {
        model: menu.recent.rows

        PlainMenuItem {
            id: row

            required property int index
            required property bool isThere

            enabled: row.isThere
            onTriggered: (row.menu as RecentMenu).recent.choose(row.index)
        }
    }
}
