import QtQuick
import QtQuick.Layouts
import Loadwick

// A figure over its quieter caption; both end on the trailing edge.
ColumnLayout {
    id: figure

    required property string value
    required property color tint
    required property string caption

    spacing: 0

    PlainLabel {
        objectName: "value"
        Layout.alignment: Qt.AlignRight
        text: figure.value
        font: AppTheme.subheadlineStrongFont
        color: figure.tint
    }
    PlainLabel {
        objectName: "caption"
        Layout.alignment: Qt.AlignRight
        text: figure.caption
        font: AppTheme.captionFont
        secondary: true
        visible: figure.caption.length > 0
    }
}
