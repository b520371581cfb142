import QtQuick
import Loadwick

// Says where a figure comes from, without colour: a disclosure, not a warning.
Rectangle {
    id: pill

    required property string label

    implicitWidth: words.implicitWidth + 2 * AppTheme.smallSpace
    implicitHeight: words.implicitHeight + 2 * AppTheme.tightSpace
    radius: height / 2
    color: AppTheme.quietFill

    PlainLabel {
        id: words
        anchors.centerIn: parent
        text: pill.label
        font: AppTheme.captionFont
        secondary: true
    }
}
