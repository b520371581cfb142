import QtQuick
import QtQuick.Layouts
import Loadwick

// Says that a scan is running.
StatePlaceholder {
    id: placeholder

    symbol: "arrow.triangle.2.circlepath"
    tint: AppTheme.accent
    title: qsTr("Scanning repository")
    turning: true

    PlainLabel {
        Layout.fillWidth: true
        text: qsTr("Running one real Claude Code session and measuring local instruction files.")
        secondary: true
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
}
