import QtQuick
import QtQuick.Layouts
import Loadwick

// One page as a scrolling column of cards, of readable width.
PageAppear {
    id: page

    default property alias cards: column.data
    // The viewport; long lists create only the rows that it shows.
    readonly property Flickable viewport: scroller.contentItem as Flickable
    // Until its first frame a page may be 0 or 1 pixels wide. At that width every word would wrap
    // to its own line, and nested layouts would not converge.
    readonly property real room: scroller.availableWidth < AppTheme.detailMinimumWidth
        ? AppTheme.contentWidth : scroller.availableWidth

    ThinScrollView {
        id: scroller

        anchors.fill: parent
        contentWidth: availableWidth
        contentHeight: column.implicitHeight + 2 * AppTheme.pageMargin
        // Its default steps would be a tenth of the page, however long that is.
        Keys.onPressed: event => { event.accepted = scroll.press(event.key); }

        ColumnLayout {
            id: column

            x: Math.round((page.room - width) / 2)
            y: AppTheme.pageMargin
            width: Math.min(AppTheme.contentWidth, page.room - 2 * AppTheme.pageMargin)
            spacing: AppTheme.cardSpace
        }
    }

    PageScroll {
        id: scroll

        viewport: page.viewport
    }
    // The page scrolls while the sidebar or the toolbar has the focus, too.
    Shortcut {
        sequences: ["PgUp"]
        enabled: Boolean(page.Window.activeFocusItem) && page.visible && !scroller.activeFocus
        onActivated: scroll.press(Qt.Key_PageUp)
    }
    Shortcut {
        sequences: ["PgDown"]
        enabled: Boolean(page.Window.activeFocusItem) && page.visible && !scroller.activeFocus
        onActivated: scroll.press(Qt.Key_PageDown)
    }
    Shortcut {
        sequences: ["Home"]
        enabled: Boolean(page.Window.activeFocusItem) && page.visible && !scroller.activeFocus
        onActivated: scroll.press(Qt.Key_Home)
    }
    Shortcut {
        sequences: ["End"]
        enabled: Boolean(page.Window.activeFocusItem) && page.visible && !scroller.activeFocus
        onActivated: scroll.press(Qt.Key_End)
    }
}
