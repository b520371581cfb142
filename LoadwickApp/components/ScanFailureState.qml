import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Loadwick

// Says that a scan has failed and what is known about it, in the error's own words. The detail can
// be selected, and scrolls if it is taller than the page. A detail of several lines may be a list,
// so it is not centred.
StatePlaceholder {
    id: placeholder

    required property string headline
    required property string detail

    symbol: "exclamationmark.triangle"
    tint: AppTheme.bandExcessive
    title: headline

    Flickable {
        id: scroller

        // The height left by the mark and the headline, in whole lines.
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
            // Centred as a whole, with room on both sides for the scroll bar.
            x: Math.round((scroller.width - width) / 2)
            width: Math.min(Math.ceil(words.implicitWidth), scroller.width - 2 * AppTheme.mediumSpace)
            text: placeholder.detail
            secondary: true
            horizontalAlignment: placeholder.detail.includes("\n") ? TextEdit.AlignLeft : TextEdit.AlignHCenter
        }
    }
}
