import QtQuick
import QtQuick.Templates
import QtQuick.Layouts
import Loadwick

// Says that a scan has failed and what is known about it, in the error's own words. The detail can
// be selected, and scrolls if it is taller than the page. A detail of several lines may be a list,
// so it is not centred.
StatePlaceholder {
    id: placeholder

    required property string headline
    required property string detail
    // What the detail means on this system; empty where it says so itself.
    property string platformNote: ""

    // Centred as a whole, with room on both sides for the scroll bar.
    component Words: SelectableText {
        x: parent ? Math.round((parent.width - width) / 2) : 0
        width: parent ? Math.min(Math.ceil(implicitWidth), parent.width - 2 * AppTheme.mediumSpace) : 0
        secondary: true
        horizontalAlignment: text.includes("\n") ? TextEdit.AlignLeft : TextEdit.AlignHCenter
    }

    symbol: "exclamationmark.triangle"
    tint: AppTheme.bandExcessive
    title: headline

    Flickable {
        id: scroller

        // The height left by the mark and the headline, in whole lines.
        readonly property int room: Math.max(3, Math.floor((placeholder.availableHeight - 160) / words.lineSpacing))

        Layout.fillWidth: true
        Layout.preferredHeight: Math.min(both.implicitHeight, Math.ceil(room * words.lineSpacing))
        contentHeight: both.implicitHeight
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        ScrollBar.vertical: ThinScrollBar { }

        Column {
            id: both

            width: scroller.width
            spacing: AppTheme.smallSpace

            Words {
                id: words
                text: placeholder.detail
            }
            Words {
                text: placeholder.platformNote
                visible: placeholder.platformNote.length > 0
            }
        }
    }
}
