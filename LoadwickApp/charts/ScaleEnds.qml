import QtQuick
import Loadwick

// The two ends of the scale that the bars above share, and what it counts.
Item {
    id: ends

    required property string start
    required property string end

    implicitHeight: unit.implicitHeight

    PlainLabel {
        anchors { left: parent.left; right: unit.left; rightMargin: AppTheme.tightSpace }
        text: ends.start
        font: AppTheme.captionFont
        secondary: true
    }
    PlainLabel {
        id: unit

        anchors.horizontalCenter: parent.horizontalCenter
        text: qsTr("tokens")
        font: AppTheme.captionFont
        secondary: true
    }
    PlainLabel {
        anchors { left: unit.right; leftMargin: AppTheme.tightSpace; right: parent.right }
        horizontalAlignment: Text.AlignRight
        text: ends.end
        font: AppTheme.captionFont
        secondary: true
    }
}
