import QtQuick
import QtQuick.Templates
import Loadwick

// The rows of the RecentMenu. The keys skip a repository whose folder is gone; the current row has
// the focus, so that a screen reader reads it.
ListView {
    id: list

    required property RecentRepositories recent
    readonly property real rowHeight: AppTheme.scaled(48)
    readonly property int pageRows: Math.max(1, Math.floor(list.height / list.rowHeight) - 1)

    signal chosen(int row)
    // The keys went beyond the first row.
    signal wentAbove()
    signal typed(string text)

    // NaN for a key that moves nothing.
    function rowAfter(key) {
        switch (key) {
        case Qt.Key_Up: return list.recent.usableFrom(list.currentIndex - 1, -1);
        case Qt.Key_Down: return list.recent.usableFrom(list.currentIndex + 1, 1);
        case Qt.Key_PageUp: return list.recent.usableFrom(Math.max(0, list.currentIndex - list.pageRows), 1);
        case Qt.Key_PageDown: return list.recent.usableFrom(Math.min(list.count - 1, list.currentIndex + list.pageRows), -1);
        case Qt.Key_Home: return list.recent.usableFrom(0, 1);
        case Qt.Key_End: return list.recent.usableFrom(list.count - 1, -1);
        default: return NaN;
        }
    }

    // Home and End move in a text.
    function takesFromField(key, text) {
        const isInText = key === Qt.Key_Home || key === Qt.Key_End;
        return !isNaN(list.rowAfter(key)) && key !== Qt.Key_Up && !(isInText && text.length > 0);
    }

    function goBy(key) {
        const row = list.rowAfter(key);
        if (row < 0) {
            if (key === Qt.Key_Up)
                list.wentAbove();
            return;
        }
        list.currentIndex = row;
        list.positionViewAtIndex(row, ListView.Contain);
        list.forceActiveFocus(Qt.TabFocusReason);
    }

    function chooseFirst() {
        const row = list.recent.usableFrom(0, 1);
        if (row >= 0)
            list.chosen(row);
    }

    function isTyping(event) {
        return event.text.length > 0 && event.text >= " " && event.text !== "\u007f"
            && !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier));
    }

    clip: true
    keyNavigationEnabled: false
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    currentIndex: -1
    model: list.recent.rows
    Accessible.role: Accessible.List
    ScrollBar.vertical: ThinScrollBar {}

    delegate: PlainMenuItem {
        id: row

        required figure
        required property int index
        required property bool exists
        required property bool isCurrent
        required property int band
        required property string words

        width: row.ListView.view ? row.ListView.view.width : 0
        implicitHeight: row.ListView.view ? (row.ListView.view as RecentList).rowHeight : 0
        enabled: row.exists
        marked: row.isCurrent
        figureTint: AppTheme.bandTexts[row.band]
        highlighted: (row.ListView.isCurrentItem && row.activeFocus) || row.hovered
        hoverEnabled: true
        Accessible.name: row.words
        onTriggered: (row.ListView.view as RecentList).chosen(row.index)
    }

    Connections {
        target: list.recent.rows

        function onModelReset() { list.currentIndex = -1; }
    }
    // The page has shortcuts for these keys.
    Keys.onShortcutOverride: event => { event.accepted = !isNaN(list.rowAfter(event.key)); }
    Keys.onPressed: event => {
        const chooses = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        event.accepted = chooses || !isNaN(list.rowAfter(event.key)) || list.isTyping(event);
        if (chooses && !event.isAutoRepeat && list.currentIndex >= 0)
            list.chosen(list.currentIndex);
        else if (!chooses && !isNaN(list.rowAfter(event.key)))
            list.goBy(event.key);
        else if (!chooses && event.accepted)
            list.typed(event.text);
    }
}
