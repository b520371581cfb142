import QtQuick
import QtQuick.Layouts
import QtQuick.Templates
import Loadwick

// One row per page. The arrow keys move the selection, Home and End go to the ends.
ListView {
    id: list

    required property ContentPresenter content

    model: content.pages
    interactive: false
    keyNavigationEnabled: true
    // The view's own highlight would slide and grow; the rows draw theirs.
    highlightFollowsCurrentItem: false
    activeFocusOnTab: true
    spacing: 2
    clip: true
    onCurrentIndexChanged: list.content.pageIndex = list.currentIndex
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Pages")

    function isOwnKey(key) { return key === Qt.Key_Home || key === Qt.Key_End; }

    // Elsewhere these keys scroll the page.
    Keys.onShortcutOverride: event => { event.accepted = list.isOwnKey(event.key); }
    Keys.onPressed: event => {
        event.accepted = list.isOwnKey(event.key);
        if (event.accepted)
            list.currentIndex = event.key === Qt.Key_Home ? 0 : list.count - 1;
    }

    // Unlike a plain binding, it survives writes by the arrow keys and the rows.
    Binding on currentIndex { value: list.content.pageIndex }

    Connections {
        target: list.content

        // A screen reader speaks a focused row anyway.
        function onPageIndexChanged() {
            if (!list.activeFocus)
                Announcer.announce(list.content.pageWords);
        }
    }

    // To assistive technology a plain button stays a button, whatever role it has.
    delegate: ItemDelegate {
        id: row

        required property int index
        required property string title
        required property string symbol
        // The shortcut to the page from anywhere in the window.
        required property string shortcut
        readonly property bool selected: ListView.isCurrentItem
        readonly property bool hasKeyboard: row.selected && ListView.view.activeFocus
        readonly property color wordColor: row.selected ? AppTheme.accent : AppTheme.text

        width: ListView.view.width
        implicitHeight: AppTheme.controlHeight
        leftPadding: AppTheme.smallSpace
        rightPadding: AppTheme.smallSpace
        focusPolicy: Qt.NoFocus
        hoverEnabled: true
        Accessible.role: Accessible.ListItem
        Accessible.name: title
        Accessible.selectable: true
        Accessible.selected: selected
        onClicked: row.ListView.view.currentIndex = row.index

        contentItem: RowLayout {
            spacing: AppTheme.smallSpace

            Symbol {
                name: row.symbol
                tint: row.wordColor
            }
            PlainLabel {
                Layout.fillWidth: true
                text: row.title
                font: row.selected ? AppTheme.bodyStrongFont : AppTheme.bodyFont
                color: row.wordColor
                Accessible.ignored: true
            }
        }

        background: Rectangle {
            radius: AppTheme.controlRadius
            color: row.selected ? AppTheme.selectionFill
                 : row.down ? AppTheme.pressedFill
                 : row.hovered ? AppTheme.hoverFill : "transparent"
            border { width: row.hasKeyboard ? 2 : 0; color: AppTheme.accent }
        }

        Shortcut {
            sequence: row.shortcut
            autoRepeat: false
            // Qt 6.8 passes the keys of a dialog on to the window behind it, which stays "active".
            enabled: Boolean(row.Window.activeFocusItem)
            onActivated: row.clicked()
        }
        HoverTip {
            cursorShape: Qt.PointingHandCursor
            words: row.shortcut
        }
    }
}
