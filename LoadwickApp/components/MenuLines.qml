import QtQuick
import Loadwick

// The words of a menu's item, in the middle of it.
Item {
    id: lines

    required property string title
    required property string detail

    Column {
        width: parent.width
        anchors.verticalCenter: parent.verticalCenter

        PlainLabel {
            width: parent.width
            text: lines.title
            elide: Text.ElideMiddle
            maximumLineCount: 1
            Accessible.ignored: true
        }
        PlainLabel {
            width: parent.width
            text: lines.detail
            font: AppTheme.captionFont
            secondary: true
            elide: Text.ElideMiddle
            maximumLineCount: 1
            visible: lines.detail.length > 0
            Accessible.ignored: true
        }
    }
}
