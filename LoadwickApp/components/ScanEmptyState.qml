import QtQuick
import QtQuick.Layouts
import Loadwick

// Says that nothing has been measured yet, and what to do about it.
StatePlaceholder {
    id: placeholder

    required property string detail
    // A note before the first step; set apart, so that it does not read as a step.
    property string note: ""

    symbol: "magnifyingglass"
    tint: AppTheme.secondaryText

    PlainLabel {
        Layout.fillWidth: true
        text: placeholder.detail
        secondary: true
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
    Hairline {
        Layout.alignment: Qt.AlignHCenter
        Layout.preferredWidth: AppTheme.wideSpace
        Layout.topMargin: AppTheme.mediumSpace
        Layout.bottomMargin: AppTheme.mediumSpace
        visible: placeholder.note.length > 0
    }
    PlainLabel {
        Layout.fillWidth: true
        text: placeholder.note
        font: AppTheme.captionFont
        secondary: true
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        visible: placeholder.note.length > 0
    }
}
