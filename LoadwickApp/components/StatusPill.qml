import QtQuick
import Loadwick

// A few words in one colour, with an optional symbol, on a capsule tinted with it.
Rectangle {
    id: pill

    required property string title
    // None when empty.
    required property string symbol
    // A text colour of the theme: the words must be readable.
    required property color tint
    property font font: AppTheme.subheadlineStrongFont
    // Whether the symbol turns, to show activity.
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
            objectName: "symbol"
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14
            name: pill.symbol
            tint: pill.tint
            turning: pill.turning
            visible: pill.symbol.length > 0
        }
        PlainLabel {
            objectName: "label"
            anchors.verticalCenter: parent.verticalCenter
            text: pill.title
            font: pill.font
            color: pill.tint
        }
    }
}
