import QtQuick
import Loadwick

// A word with a symbol in one colour, on a capsule thinly filled with it.
Rectangle {
    id: pill

    required property string title
    required property string symbol
    // A text colour of the theme: the word has to be read.
    required property color tint
    // Whether the symbol turns, to show that something goes on.
    property bool turning: false

    implicitWidth: line.implicitWidth + 2 * AppTheme.smallSpace
    implicitHeight: line.implicitHeight + 2 * AppTheme.tightSpace
    radius: height / 2
    color: Qt.alpha(tint, AppTheme.tintOpacity)

    Row {
        id: line
        anchors.centerIn: parent
        spacing: AppTheme.tightSpace + 1

        SpinnerIcon {
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14
            name: pill.symbol
            tint: pill.tint
            turning: pill.turning
        }
        PlainLabel {
            anchors.verticalCenter: parent.verticalCenter
            text: pill.title
            font: AppTheme.subheadlineStrongFont
            color: pill.tint
        }
    }
}
