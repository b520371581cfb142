import QtQuick
import Loadwick

// One row per page. The arrow keys move the choice.
ListView {
    id: list

    required property ContentPresenter content

    model: content.pages
    interactive: false
    keyNavigationEnabled: true
    activeFocusOnTab: true
    spacing: 2
    clip: true
    onCurrentIndexChanged: list.content.pageIndex = list.currentIndex
    Accessible.role: Accessible.List
    Accessible.name: "Pages"

    // Unlike a plain binding, it survives what the arrow keys and the rows write.
    Binding on currentIndex { value: list.content.pageIndex }

    delegate: SidebarRow {
        id: row

        width: ListView.view.width
        selected: ListView.isCurrentItem
        ringed: ListView.isCurrentItem && ListView.view.activeFocus
        onClicked: row.ListView.view.currentIndex = row.index
    }
}
