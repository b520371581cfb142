import QtQuick
import Loadwick

// One row per page. The arrow keys move the choice, Home and End to the first and the last.
ListView {
    id: list

    required property ContentPresenter content

    model: content.pages
    interactive: false
    keyNavigationEnabled: true
    // The view's own mark of the current row is not to be seen, but would slide and grow.
    highlightFollowsCurrentItem: false
    activeFocusOnTab: true
    spacing: 2
    clip: true
    onCurrentIndexChanged: list.content.pageIndex = list.currentIndex
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Pages")

    function isOwnKey(key) { return key === Qt.Key_Home || key === Qt.Key_End; }

    // Elsewhere these scroll the page.
    Keys.onShortcutOverride: event => { event.accepted = list.isOwnKey(event.key); }
    Keys.onPressed: event => {
        event.accepted = list.isOwnKey(event.key);
        if (event.accepted)
            list.currentIndex = event.key === Qt.Key_Home ? 0 : list.count - 1;
    }

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
