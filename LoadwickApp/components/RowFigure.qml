import QtQuick
import Loadwick

// A figure over its quieter caption; both end on the trailing edge.
Item {
    id: figure

    required property string value
    required property color tint
    required property string caption

    implicitWidth: Math.max(number.implicitWidth, note.visible ? note.implicitWidth : 0)
    implicitHeight: number.implicitHeight + (note.visible ? note.implicitHeight : 0)

    PlainLabel {
        id: number

        objectName: "value"
        anchors.right: parent.right
        text: figure.value
        font: AppTheme.subheadlineStrongFont
        color: figure.tint
    }
    PlainLabel {
        id: note

        objectName: "caption"
        anchors { right: parent.right; top: number.bottom }
        text: figure.caption
        font: AppTheme.captionFont
        secondary: true
        visible: figure.caption.length > 0
    }
}
