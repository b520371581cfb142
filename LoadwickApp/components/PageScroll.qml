import QtQuick
import Loadwick

// Scrolls a page for the keyboard: by the scroll keys, and to the newly focused item.
Item {
    id: scroll

    required property Flickable viewport
    readonly property real farthest: Math.max(0, scroll.viewport.contentHeight - scroll.viewport.height)
    // Less than a page, so that the line at the edge stays visible.
    readonly property real pageStep: scroll.viewport.height - AppTheme.wideSpace
    // The section whose header has the focus, and whether it was opened and has not scrolled yet.
    property CollapsibleSection section: null
    property bool isOpening: false

    function moveTo(y) {
        scroll.viewport.contentY = Math.max(0, Math.min(scroll.farthest, y));
    }

    // Returns whether the key scrolls.
    function press(key) {
        const here = scroll.viewport.contentY;
        switch (key) {
        case Qt.Key_Up: scroll.moveTo(here - AppTheme.scrollStep); return true;
        case Qt.Key_Down: scroll.moveTo(here + AppTheme.scrollStep); return true;
        case Qt.Key_PageUp: scroll.moveTo(here - scroll.pageStep); return true;
        case Qt.Key_PageDown: scroll.moveTo(here + scroll.pageStep); return true;
        case Qt.Key_Home: scroll.moveTo(0); return true;
        case Qt.Key_End: scroll.moveTo(scroll.farthest); return true;
        default: return false;
        }
    }

    function holds(item) {
        let holder = item;
        while (holder && holder !== scroll.viewport.contentItem)
            holder = holder.parent;
        return holder === scroll.viewport.contentItem;
    }

    // An item that is taller than the page does not scroll into view.
    function reveal(item) {
        const box = item.mapToItem(scroll.viewport.contentItem, 0, 0, item.width, item.height);
        const start = box.y - AppTheme.cardSpace;
        const end = box.y + box.height + AppTheme.cardSpace;
        if (end - start > scroll.viewport.height)
            return;
        if (start < scroll.viewport.contentY)
            scroll.moveTo(start);
        else if (end > scroll.viewport.contentY + scroll.viewport.height)
            scroll.moveTo(end - scroll.viewport.height);
    }

    // Nothing moves under a pressed pointer, or the release would hit something else.
    function revealFocus() {
        const item = scroll.Window.activeFocusItem;
        if (item && !pointer.active && scroll.holds(item))
            scroll.reveal(item);
    }

    function noteSection() {
        const item = scroll.Window.activeFocusItem;
        scroll.section = item && scroll.holds(item) ? item.parent as CollapsibleSection : null;
        scroll.isOpening = false;
    }

    // A section that was just opened scrolls into view, header first, once both it and the page have
    // grown; which of them is first depends on the version of Qt.
    function revealOpened() {
        if (!scroll.isOpening || !scroll.section || scroll.section.height < Math.floor(scroll.section.implicitHeight))
            return;
        const bottom = scroll.section.mapToItem(scroll.viewport.contentItem, 0, scroll.section.height).y;
        if (bottom > scroll.viewport.contentHeight)
            return;
        if (!pointer.active)
            scroll.reveal(scroll.section);
        scroll.isOpening = false;
    }

    Window.onActiveFocusItemChanged: {
        scroll.noteSection();
        afterwards.restart();
    }

    Connections {
        target: scroll.section

        function onIsExpandedChanged() { scroll.isOpening = scroll.section.isExpanded; }
        function onHeightChanged() { scroll.revealOpened(); }
    }
    Connections {
        target: scroll.viewport

        function onContentHeightChanged() { scroll.revealOpened(); }
    }

    // The pointer handler below sees a press only after the pressed item.
    Timer {
        id: afterwards

        interval: 0
        onTriggered: scroll.revealFocus()
    }

    PointHandler {
        id: pointer

        parent: scroll.viewport
        target: null
        acceptedButtons: Qt.AllButtons
    }
}
