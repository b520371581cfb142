import QtQuick
import Loadwick

// One row per page. The arrow keys move the choice.
ListView {
    id: list

    required property ContentPresenter content

    model: content.pages
    currentIndex: content.pageIndex
    interactive: false
    keyNavigationEnabled: true
    activeFocusOnTab: true
    spacing: 2
    clip: true
    onCurrentIndexChanged: list.content.pageIndex = list.currentIndex
    Accessible.role: Accessible.List
    Accessible.name: "Pages"

    delegate: SidebarRow {
        width: list.width
        selected: ListView.isCurrentItem
        ringed: ListView.isCurrentItem && list.activeFocus
        onClicked: list.content.pageIndex = index
    }
}
