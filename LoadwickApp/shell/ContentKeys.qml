import QtQuick
import Loadwick

// The keys of the window that belong to no control: F6 switches between the sidebar and the detail,
// Ctrl+W and Ctrl+Q close the window and thus the program.
Item {
    id: keys

    // Has the focus while no tab stop has it, and shows nothing of that.
    required property Item start
    // The item that takes the focus in the sidebar.
    required property Item sidebar
    // The right column with its toolbar, and the page that it shows.
    required property Item detail
    required property Item page
    // False while another window has the keyboard, such as a dialog.
    readonly property bool hasKeyboard: Boolean(keys.Window.activeFocusItem)
    // By page, the last item in the detail that had the focus while the page was shown.
    readonly property var lastStops: new Map()

    function holds(holder, item) {
        let above = item;
        while (above && above !== holder)
            above = above.parent;
        return Boolean(holder) && above === holder;
    }

    // The last focused item in the page, else the page's first tab stop, else the toolbar's.
    function detailStop() {
        const last = keys.lastStops.get(keys.page);
        if (last && last.visible && last.enabled)
            return last;
        const first = keys.page.nextItemInFocusChain(true);
        return keys.holds(keys.page, first) ? first : keys.detail.nextItemInFocusChain(true);
    }

    function switchSides() {
        const inDetail = keys.holds(keys.detail, keys.Window.activeFocusItem);
        const stop = inDetail ? keys.sidebar : keys.detailStop();
        stop.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    // Sets the initial focus, if nothing has it.
    function begin() {
        const item = keys.Window.activeFocusItem;
        if (!keys.holds(keys.sidebar, item) && !keys.holds(keys.detail, item))
            keys.detailStop().forceActiveFocus(Qt.ShortcutFocusReason);
    }

    // From a window in which nothing has the focus, Orca 48 does not speak the first stop that a key
    // reaches.
    function rest() {
        if (!keys.hasKeyboard)
            keys.start.focus = false;
        else if (keys.holds(keys.Window.activeFocusItem, keys.start))
            keys.start.forceActiveFocus(Qt.OtherFocusReason);
    }

    // Keys would be lost on a page that is hidden.
    function leaveHiddenPage() {
        const item = keys.Window.activeFocusItem;
        if (item && !item.visible && keys.holds(keys.detail, item))
            keys.sidebar.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    function noteStop() {
        const item = keys.Window.activeFocusItem;
        if (keys.holds(keys.detail, item))
            keys.lastStops.set(keys.page, item);
    }

    visible: false
    onHasKeyboardChanged: afterwards.restart()
    // A page can also be hidden while a dialog has the keyboard.
    Window.onActiveFocusItemChanged: {
        keys.leaveHiddenPage();
        keys.noteStop();
    }

    // Once the window is active: Orca 43 does not speak its name if something has the focus before.
    Timer {
        id: afterwards

        interval: 0
        onTriggered: keys.rest()
    }
    Shortcut {
        sequences: ["F6", "Shift+F6"]
        enabled: keys.hasKeyboard
        onActivated: keys.switchSides()
    }
    // Active while a modal sheet is open, too.
    Shortcut {
        sequences: ["Ctrl+W", "Ctrl+Q"]
        context: Qt.ApplicationShortcut
        onActivated: keys.Window.window.close()
    }
}
