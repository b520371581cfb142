import QtQuick
import QtQuick.Layouts
import Loadwick

// A figure, what it measures, and a comparison.
ColumnLayout {
    id: tile

    required property string title
    required property string value
    required property string caption
    property color tint: AppTheme.text

    spacing: 2

    PlainLabel {
        Layout.fillWidth: true
        text: tile.title
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
    }
    PlainLabel {
        Layout.fillWidth: true
        text: tile.value
        font: AppTheme.title3StrongFont
        color: tile.tint
        wrapMode: Text.Wrap
    }
    PlainLabel {
        Layout.fillWidth: true
        text: tile.caption
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
    }
}
