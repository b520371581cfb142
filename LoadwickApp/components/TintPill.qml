import QtQuick
import Loadwick

// A few words in one colour, on a capsule thinly filled with it.
Rectangle {
    id: pill

    required property string label
    // A text colour of the theme: the words have to be read.
    required property color tint

    implicitWidth: words.implicitWidth + 2 * AppTheme.smallSpace
    implicitHeight: words.implicitHeight + 2 * AppTheme.tightSpace
    radius: height / 2
    color: Qt.alpha(tint, AppTheme.tintOpacity)

    PlainLabel {
        id: words
        anchors.centerIn: parent
        text: pill.label
        font: AppTheme.captionStrongFont
        color: pill.tint
    }
}
