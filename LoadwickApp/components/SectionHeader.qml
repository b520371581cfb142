import QtQuick
import QtQuick.Layouts
import Loadwick

// The title of a section and an optional, quieter line below it.
ColumnLayout {
    id: header

    required property string title
    property string detail: ""
    property font titleFont: AppTheme.headlineFont

    spacing: 2

    TitleLabel {
        Layout.fillWidth: true
        text: header.title
        font: header.titleFont
    }
    PlainLabel {
        Layout.fillWidth: true
        text: header.detail
        font: AppTheme.subheadlineFont
        secondary: true
        wrapMode: Text.Wrap
        visible: header.detail.length > 0
    }
}
