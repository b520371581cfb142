import QtQuick
import QtQuick.Layouts
import Loadwick

// The two ends of the scale that the bars above share, and what it counts.
RowLayout {
    id: ends

    required property string start
    required property string end

    PlainLabel {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        text: ends.start
        font: AppTheme.captionFont
        secondary: true
    }
    PlainLabel {
        text: qsTr("tokens")
        font: AppTheme.captionFont
        secondary: true
    }
    PlainLabel {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        horizontalAlignment: Text.AlignRight
        text: ends.end
        font: AppTheme.captionFont
        secondary: true
    }
}
