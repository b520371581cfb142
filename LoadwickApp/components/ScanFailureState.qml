import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Loadwick

// A scan has failed, and what is known about it. It has no words of its own. The detail can be
// selected, and scrolls where it is longer than the page is high.
StatePlaceholder {
    id: placeholder

    required property string headline
    required property string detail

    symbol: "exclamationmark.triangle"
    tint: AppTheme.bandExcessiveText
    title: headline

    ScrollView {
        id: scroller

        Layout.fillWidth: true
        Layout.preferredHeight: words.implicitHeight
        // What the mark and the headline leave.
        Layout.maximumHeight: Math.max(60, placeholder.availableHeight - 160)
        contentWidth: availableWidth
        ScrollBar.horizontal.policy: ScrollBar.AlwaysOff

        SelectableText {
            id: words
            width: scroller.availableWidth
            text: placeholder.detail
            secondary: true
            horizontalAlignment: Text.AlignHCenter
            ground: AppTheme.window
        }
    }
}
