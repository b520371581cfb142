import QtQuick
import Loadwick

// The words of a menu's item, in the middle of it, and its mark at their end.
Item {
    id: lines

    required property string title
    required property string detail
    required property bool marked
    required property bool usable

    Column {
        anchors { left: parent.left; right: lines.marked ? mark.left : parent.right; verticalCenter: parent.verticalCenter }
        anchors.rightMargin: lines.marked ? AppTheme.smallSpace : 0

        PlainLabel {
            width: parent.width
            text: lines.title
            opacity: lines.usable ? 1 : AppTheme.disabledOpacity
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
    Symbol {
        id: mark

        objectName: "mark"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        name: "checkmark.circle.fill"
        tint: AppTheme.accent
        visible: lines.marked
    }
}
