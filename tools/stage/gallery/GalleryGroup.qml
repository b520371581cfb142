import QtQuick
import QtQuick.Layouts
import Loadwick

// A few components under the name of what they show.
ColumnLayout {
    id: group

    required property string title
    default property alias content: flow.data

    spacing: AppTheme.smallSpace

    PlainLabel {
        text: group.title
        font: AppTheme.captionStrongFont
        secondary: true
    }
    Flow {
        id: flow
        Layout.fillWidth: true
        spacing: AppTheme.mediumSpace
    }
}
