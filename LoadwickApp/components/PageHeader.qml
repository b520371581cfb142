import QtQuick
import QtQuick.Layouts
import Loadwick

// Names a page and says what it is about.
ColumnLayout {
    id: header

    required property string title
    required property string detail

    spacing: AppTheme.tightSpace

    TitleLabel {
        Layout.fillWidth: true
        text: header.title
        font: AppTheme.largeTitleFont
    }
    PlainLabel {
        Layout.fillWidth: true
        text: header.detail
        secondary: true
        wrapMode: Text.Wrap
    }
}
