import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Loadwick

// Says that a scan has failed and what is known about it, in no words of its own. The detail can be
// selected, and scrolls where it is longer than the page is high. A detail of several lines may be a
// list, so it is not centred.
StatePlaceholder {
    id: placeholder

    required property string headline
    required property string detail

    symbol: "exclamationmark.triangle"
    tint: AppTheme.bandExcessive
    title: headline

    Flickable {
        id: scroller

        // What the mark and the headline leave, in whole lines.
        readonly property int room: Math.max(3, Math.floor((placeholder.availableHeight - 160) / words.lineSpacing))

        Layout.fillWidth: true
        Layout.preferredHeight: Math.min(words.implicitHeight, Math.ceil(room * words.lineSpacing))
        contentHeight: words.implicitHeight
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        ScrollBar.vertical: ThinScrollBar { }

        SelectableText {
            id: words
            // In the middle as a whole, with room on both sides for the scroll bar.
            x: Math.round((scroller.width - width) / 2)
            width: Math.min(Math.ceil(words.implicitWidth), scroller.width - 2 * AppTheme.mediumSpace)
            text: placeholder.detail
            secondary: true
            horizontalAlignment: placeholder.detail.includes("\n") ? TextEdit.AlignLeft : TextEdit.AlignHCenter
        }
    }
}
